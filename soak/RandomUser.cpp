#include "soak/RandomUser.h"

#include <algorithm>
#include <chrono>

namespace tavrelkin::test {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostWindows = 8;
constexpr int kMenuBar = 24;

}  // namespace

// The position is below the menu bar, where a second press might choose the item that ends the program.
ScreenPoint RandomUser::placeOn(xcb_window_t window) {
  const Area area = session_.windows.area(window);
  return {area.x + number(area.width), area.y + kMenuBar + number(area.height - kMenuBar)};
}

ScreenPoint RandomUser::anywhere() {
  const auto windows = session_.windows.all();
  if (!windows.empty() && number(4) > 0) return placeOn(oneOf(windows));
  return {number(session_.client.screenWidth()), number(session_.client.screenHeight())};
}

void RandomUser::act() {
  const auto windows = session_.windows.all();
  if (windows.empty() || leaveDialog()) return;
  const xcb_window_t chosen = oneOf(windows);
  if (windows.size() > kMostWindows) {
    session_.windows.close(chosen);
    waitUntil([&] { return session_.windows.all().size() < windows.size(); }, 2s);
    return;
  }
  session_.windows.activate(chosen);
  // On a busy machine the window may not be in front yet, and a click would hit another window's menu bar.
  if (!waitUntil([&] { return session_.windows.hasKeyboard(chosen); }, 2s)) return;
  const int what = number(10);
  if (what < 5) return press(chosen);
  if (what < 8) return useMouse(chosen);
  if (what < 9) return openMenu(chosen);
  moveOrMinimise(chosen);
}

// Presses keys whose commands mostly need no further input. The last window is never closed, since that ends the
// program. Another window may be closing by itself, as favourites that can't be read do.
void RandomUser::press(xcb_window_t window) {
  const std::size_t count = session_.windows.all().size();
  const std::string title = session_.windows.title(window);
  if (number(12) == 0 && count > 2) {
    session_.hand.keys("Ctrl+W");
    waitUntil([&] { return session_.windows.all().size() < count; }, 2s);
  } else if (isTool(title)) {
    session_.hand.keys(oneOf<const char*>({"Ctrl+F", "Ctrl+F", "Ctrl+L", "Ctrl+X", "Ctrl+Y", "Ctrl+G", "Ctrl+S",
                                           "Ctrl+J", "Ctrl+D", "Ctrl+C", "Ctrl+Alt+C", "Ctrl+V", "Ctrl+Alt+P", "Ctrl+N",
                                           "Ctrl+Shift+N", "Tab", "Left", "Right"}));
  } else if (isPalette(title)) {
    session_.hand.keys(
        oneOf<const char*>({"Ctrl+S", "Ctrl+Shift+S", "Ctrl+C", "Ctrl+V", "Ctrl+Alt+C", "Ctrl+D", "Ctrl+N"}));
  } else {
    session_.hand.keys(oneOf<const char*>({"Ctrl+V", "Ctrl+C", "Ctrl+D", "Tab", "Up", "Down", "1", "7"}));
  }
}

void RandomUser::useMouse(xcb_window_t window) {
  const ScreenPoint from = placeOn(window);
  const int what = number(6);
  if (what == 0) session_.hand.drag(from, anywhere());
  if (what == 1) session_.hand.altDrag(from, anywhere());
  if (what == 2) session_.hand.moveTo(anywhere());
  if (what > 2) session_.hand.click(from);
  // The new window may be a menu or a dialog.
  if (number(2) == 0) session_.hand.keys(oneOf<const char*>({"Escape", "Down", "Up"}));
}

// Opens a menu, or chooses the favourites, the last item of a menu. Never opens the menu with Quit: a menu that opens
// after the keys that close it stays open, and a later click might choose Quit.
void RandomUser::openMenu(xcb_window_t window) {
  constexpr int kView = 129;
  const int menu = oneOf<int>({55, 84, kView, 180});
  const Area area = session_.windows.area(window);
  session_.hand.click({area.x + menu, area.y + kMenuBar / 2});
  session_.hand.keys("Up");
  session_.hand.rest();
  if (menu == kView) return session_.hand.keys("Return");
  session_.hand.keys("Escape");
  session_.hand.keys("Escape");
}

// Rests after a window has come back: for some milliseconds the server gives it the keys, but no press of the button.
// The release of Alt would then open the menu with Quit, as after Alt alone.
void RandomUser::moveOrMinimise(xcb_window_t window) {
  if (number(3) != 0)
    return session_.windows.moveTo(window, static_cast<std::int16_t>(number(900)),
                                   static_cast<std::int16_t>(number(500)));
  session_.windows.minimise(window);
  waitUntil([&] { return session_.windows.isMinimised(window); }, 500ms);
  session_.windows.activate(window);
  session_.hand.rest();
}

// Sometimes answers a save dialog, and leaves any other. False if no dialog is open.
bool RandomUser::leaveDialog() {
  const auto windows = session_.windows.all();
  const auto titleOf = [this](xcb_window_t window) { return session_.windows.title(window); };
  const auto dialog = std::ranges::find_if(windows, isDialog, titleOf);
  if (dialog == windows.end()) return false;
  session_.windows.activate(*dialog);
  waitUntil([&] { return session_.windows.hasKeyboard(*dialog); }, 500ms);
  session_.hand.keys(oneOf<const char*>({"Escape", "Escape", "Return"}));
  const auto isGone = [&] { return std::ranges::count(session_.windows.all(), *dialog) == 0; };
  if (!waitUntil(isGone, 1s)) session_.windows.close(*dialog);
  return true;
}

bool RandomUser::tidyUp() {
  session_.hand.keys("Escape");
  session_.hand.keys("Escape");
  if (!waitUntil([this] { return !leaveDialog() && !session_.windows.all().empty(); }, 60s)) return false;

  const auto before = session_.windows.all();
  xcb_window_t made = XCB_NONE;
  const auto isMade = [&] {
    if (leaveDialog()) return false;  // a dialog that opened late
    session_.windows.activate(before.back());
    session_.hand.rest();
    session_.hand.keys("Ctrl+N");
    const auto isNew = [&] {
      const auto tools = session_.windows.titled("Color: ");
      made = tools.empty() ? XCB_NONE : tools.back();
      return made != XCB_NONE && std::ranges::count(before, made) == 0;
    };
    return waitUntil(isNew, 2s);
  };
  const auto isAlone = [&] {
    for (const xcb_window_t window : session_.windows.all())
      if (window != made) session_.windows.close(window);
    return waitUntil([&] { return session_.windows.all().size() == 1; }, 1s);
  };
  return waitUntil(isMade, 30s) && waitUntil(isAlone, 30s);
}

}  // namespace tavrelkin::test
