#include "e2e/soak/RandomUser.h"

#include <algorithm>
#include <chrono>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostWindows = 8;
constexpr int kMenuBar = 24;

}  // namespace

std::vector<RandomUser::Shown> RandomUser::shown() const {
  std::vector<Shown> result;
  for (const xcb_window_t window : session_.windows.all()) {
    const std::string title = session_.windows.title(window);
    const bool isPalette = title.starts_with("Untitled Colors") || title.ends_with(".aco");
    const Kind kind = title.starts_with("Color: ")       ? Kind::kTool
                      : title.starts_with("Color Blind") ? Kind::kSimulator
                      : isPalette                        ? Kind::kPalette
                                                         : Kind::kDialog;
    result.push_back({window, kind});
  }
  return result;
}

std::string RandomUser::oneOf(std::initializer_list<const char*> texts) {
  return texts.begin()[number(static_cast<int>(texts.size()))];
}

// Below the menu bar, where a second press might take the item that ends the program.
ScreenPoint RandomUser::placeOn(xcb_window_t window) {
  const Area area = session_.windows.area(window);
  return {area.x + number(std::max<int>(1, area.width)),
          area.y + kMenuBar + number(std::max<int>(1, area.height - kMenuBar))};
}

ScreenPoint RandomUser::anywhere() {
  const auto windows = shown();
  if (windows.empty() || number(4) == 0)
    return {number(session_.client.screenWidth()), number(session_.client.screenHeight())};
  return placeOn(windows[static_cast<std::size_t>(number(static_cast<int>(windows.size())))].window);
}

void RandomUser::act() {
  const auto windows = shown();
  if (windows.empty()) return;
  const auto dialog = std::ranges::find(windows, Kind::kDialog, &Shown::kind);
  if (dialog != windows.end()) return leave(dialog->window);
  if (windows.size() > kMostWindows) {
    session_.windows.close(windows[static_cast<std::size_t>(number(kMostWindows))].window);
    waitUntil([&] { return shown().size() < windows.size(); }, 2s);
    return;
  }
  actOn(windows[static_cast<std::size_t>(number(static_cast<int>(windows.size())))]);
}

void RandomUser::actOn(const Shown& chosen) {
  session_.windows.activate(chosen.window);
  waitUntil([&] { return session_.windows.hasKeyboard(chosen.window); }, 200ms);
  const int what = number(10);
  if (what < 5) return press(chosen);
  if (what < 8) return useMouse(chosen);
  if (what < 9) return openMenu(chosen.window);
  moveOrMinimise(chosen.window);
}

// What asks nothing of the user, for the most part. The last window is never closed, for that would be the end.
void RandomUser::press(const Shown& chosen) {
  const std::size_t count = shown().size();
  if (number(12) == 0 && count > 1) {
    session_.hand.keys("Ctrl+W");
    waitUntil([&] { return shown().size() < count; }, 2s);
    return;
  }
  switch (chosen.kind) {
    case Kind::kTool:
      return session_.hand.keys(
          oneOf({"Ctrl+F", "Ctrl+F", "Ctrl+L", "Ctrl+X", "Ctrl+Y", "Ctrl+G", "Ctrl+S", "Ctrl+J", "Ctrl+D", "Ctrl+C",
                 "Ctrl+Alt+C", "Ctrl+V", "Ctrl+Alt+P", "Ctrl+N", "Ctrl+Shift+N", "Tab", "Left", "Right"}));
    case Kind::kPalette:
      return session_.hand.keys(
          oneOf({"Ctrl+S", "Ctrl+Shift+S", "Ctrl+C", "Ctrl+V", "Ctrl+Alt+C", "Ctrl+D", "Ctrl+N"}));
    default:
      return session_.hand.keys(oneOf({"Ctrl+V", "Ctrl+C", "Ctrl+D", "Tab", "Up", "Down", "1", "7"}));
  }
}

void RandomUser::useMouse(const Shown& chosen) {
  const ScreenPoint from = placeOn(chosen.window);
  switch (number(6)) {
    case 0:
      session_.hand.drag(from, anywhere());
      break;
    case 1:
      session_.hand.altDrag(from, anywhere());
      break;
    case 2:
      session_.hand.moveTo(anywhere());
      break;
    default:
      session_.hand.click(from);
  }
  // What has come up may be a menu or a dialog.
  if (number(2) == 0) session_.hand.keys(oneOf({"Escape", "Down", "Up"}));
}

// Looks into any menu, or takes the favourites, the last item of one.
void RandomUser::openMenu(xcb_window_t window) {
  constexpr int kMenus[] = {20, 55, 84, 129, 180};
  constexpr int kView = 3;
  const int menu = number(5);
  const Area area = session_.windows.area(window);
  session_.hand.click({area.x + kMenus[menu], area.y + kMenuBar / 2});
  session_.hand.keys("Up");
  session_.hand.rest();
  if (menu == kView) return session_.hand.keys("Return");
  session_.hand.keys("Escape");
  session_.hand.keys("Escape");
}

void RandomUser::moveOrMinimise(xcb_window_t window) {
  if (number(3) != 0)
    return session_.windows.moveTo(window, static_cast<std::int16_t>(number(900)),
                                   static_cast<std::int16_t>(number(500)));
  session_.windows.minimise(window);
  waitUntil([&] { return session_.windows.isMinimised(window); }, 500ms);
  session_.windows.activate(window);
}

// A save dialog is now and then answered.
void RandomUser::leave(xcb_window_t dialog) {
  session_.windows.activate(dialog);
  waitUntil([&] { return session_.windows.hasKeyboard(dialog); }, 500ms);
  session_.hand.keys(oneOf({"Escape", "Escape", "Return"}));
  const auto isGone = [&] { return std::ranges::count(session_.windows.all(), dialog) == 0; };
  if (!waitUntil(isGone, 1s)) session_.windows.close(dialog);
}

bool RandomUser::tidyUp() {
  session_.hand.keys("Escape");
  session_.hand.keys("Escape");
  const auto hasNoDialog = [&] {
    const auto windows = shown();
    const auto dialog = std::ranges::find(windows, Kind::kDialog, &Shown::kind);
    if (dialog != windows.end()) leave(dialog->window);
    return dialog == windows.end() && !windows.empty();
  };
  if (!waitUntil(hasNoDialog, 60s)) return false;

  const auto before = session_.windows.all();
  xcb_window_t made = XCB_NONE;
  const auto isMade = [&] {
    session_.windows.activate(before.back());
    session_.hand.rest();
    session_.hand.keys("Ctrl+N");
    return waitUntil(
        [&] {
          for (const auto& candidate : shown())
            if (candidate.kind == Kind::kTool && std::ranges::count(before, candidate.window) == 0)
              made = candidate.window;
          return made != XCB_NONE;
        },
        2s);
  };
  return waitUntil(isMade, 30s) && closeAllBut(made);
}

bool RandomUser::closeAllBut(xcb_window_t kept) {
  const auto isAlone = [&] {
    for (const xcb_window_t window : session_.windows.all())
      if (window != kept) session_.windows.close(window);
    return waitUntil([&] { return session_.windows.all().size() == 1; }, 1s);
  };
  return waitUntil(isAlone, 30s);
}

}  // namespace tavrelkin::test
