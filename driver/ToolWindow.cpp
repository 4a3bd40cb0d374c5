#include "driver/ToolWindow.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace tavrelkin::test {

namespace {

constexpr int kWidth = 448;
constexpr int kFoldedHeight = 262;
constexpr int kUnfoldedHeight = 400;
constexpr ScreenPoint kPreview{20, 33};
constexpr ScreenPoint kTriangle{29, 241};
constexpr ScreenPoint kSliderEnd{124, 359};  // to the right of the handle at the lower steps

std::string hex(std::uint32_t rgb) {
  char text[10];
  std::snprintf(text, sizeof text, "#%06X", rgb);
  return text;
}

// Whether a position is on the edge of the rectangle that begins at `left`, `top`.
bool isOnEdge(int x, int y, int left, int top, int width, int height) {
  const int fromRight = left + width - 1 - x;
  const int fromBottom = top + height - 1 - y;
  return std::min({x - left, y - top, fromRight, fromBottom}) == 0;
}

bool isDark(std::uint32_t rgb) {
  return std::max({rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255}) * 2 < 255;
}

}  // namespace

ScreenPoint ProgramWindow::onScreen(int x, int y) const {
  const Area area = session_.windows.area(window_);
  const int menuBar = static_cast<int>(std::lround(area.height / scale_)) - contentHeight_;
  return {area.x + scaled(x), area.y + scaled(menuBar + y)};
}

int ProgramWindow::scaled(int pixels) const {
  return static_cast<int>(std::floor(pixels * scale_ + 0.5));
}

std::uint32_t ProgramWindow::shows(int x, int y) const {
  const ScreenPoint at = onScreen(x, y);
  return session_.client.read({static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y), 1, 1}).front();
}

void ProgramWindow::moveTo(std::int16_t x, std::int16_t y) {
  session_.windows.moveTo(window_, x, y);
  // The window may have been near this position before, and the frame adds some pixels: so waits until the window
  // rests.
  const auto isThere = [&] {
    const Area before = session_.windows.area(window_);
    session_.hand.rest();
    const Area area = session_.windows.area(window_);
    return area.x == before.x && area.y == before.y && std::abs(area.x - x) < 20 && std::abs(area.y - y) < 40;
  };
  if (!waitUntil(isThere)) throw std::runtime_error("The window doesn't move.");
}

void ProgramWindow::keys(const std::string& chord) {
  session_.bringToFront(window_);
  session_.hand.keys(chord);
}

void ProgramWindow::choose(int x, const std::string& key) {
  session_.bringToFront(window_);
  click(x, -10);
  session_.hand.keys(key);
  session_.hand.rest();
  session_.hand.keys("Return");
}

void ProgramWindow::paste(const std::string& text) {
  session_.clipboard.copy(text);
  keys("Ctrl+V");
}

testing::AssertionResult ProgramWindow::getsTitle(const std::string& expected) const {
  if (waitUntil([&] { return title() == expected; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "The title is \"" << title() << "\", not \"" << expected << "\".";
}

testing::AssertionResult ProgramWindow::gets(std::uint32_t rgb, int x, int y) const {
  if (waitUntil([&] { return shows(x, y) == rgb; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "(" << x << ", " << y << ") is " << hex(shows(x, y)) << ", not " << hex(rgb);
}

ScreenPoint Preview::enlarged(int x, int y) const {
  return {centre.x - kWidth / cell() / 2 + x / cell(), centre.y - kHeight / cell() / 2 + y / cell()};
}

std::uint32_t Preview::color(int x, int y) const {
  const int markerX = kWidth / cell() / 2 * cell();
  const int markerY = kHeight / cell() / 2 * cell();
  if (isOnEdge(x, y, 0, 0, kWidth, kHeight)) return 0xFFFFFF;
  if (isOnEdge(x, y, markerX, markerY, cell() + 1, cell() + 1))
    return isDark(screen(centre.x, centre.y)) ? 0xF97324 : 0x000000;
  const ScreenPoint at = enlarged(x, y);
  return screen(at.x, at.y);
}

std::string titleOf(std::uint32_t rgb) {
  char text[60];
  std::snprintf(text, sizeof text, "Color: %u.%u.%u, #%06X", rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255, rgb);
  return text;
}

// Moves the window away from the other windows of the tests, which are further to the right and further down.
ToolWindow::ToolWindow(Session& session) : ToolWindow(session, session.waitForWindow("Color: ")) {
  session.bringToFront(window());
  moveTo(20, 20);
}

ToolWindow::ToolWindow(Session& session, xcb_window_t window) : ProgramWindow(session, window, kFoldedHeight) {}

testing::AssertionResult ToolWindow::paste(std::uint32_t rgb) {
  ProgramWindow::paste(hex(rgb));
  return getsTitleOf(rgb);
}

void ToolWindow::unfold() {
  const int before = session_.windows.area(window()).height;
  click(kTriangle.x, kTriangle.y);
  const int after = before + kUnfoldedHeight - kFoldedHeight;
  if (!waitUntil([&] { return session_.windows.area(window()).height == after; }))
    throw std::runtime_error("The window doesn't unfold.");
  contentHeight_ = kUnfoldedHeight;
}

void ToolWindow::zoomIn(int from, int to) {
  for (int step = from; step < to; ++step)
    click(kSliderEnd.x, kSliderEnd.y);
}

ScreenPoint ToolWindow::onBar(int bar, int column) const {
  return onScreen((bar < 3 ? 158 : 307) + column, 277 + bar % 3 * 26);
}

ScreenPoint ToolWindow::onPreview(int x, int y) const {
  const ScreenPoint corner = onScreen(kPreview.x, kPreview.y);
  return {corner.x + scaled(x), corner.y + scaled(y)};
}

Pixels ToolWindow::preview() const {
  const ScreenPoint at = onPreview(0, 0);
  return session_.client.read({static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y),
                               static_cast<std::uint16_t>(scaled(Preview::kWidth)),
                               static_cast<std::uint16_t>(scaled(Preview::kHeight))});
}

// Draws each pixel as a block that ends where the next one begins.
Pixels ToolWindow::enlarged(const Preview& preview) const {
  Pixels result;
  for (int y = 0; y < Preview::kHeight; ++y)
    for (int row = scaled(y); row < scaled(y + 1); ++row)
      for (int x = 0; x < Preview::kWidth; ++x)
        result.insert(result.end(), static_cast<std::size_t>(scaled(x + 1) - scaled(x)),
                      session_.client.shown(preview.color(x, y)));
  return result;
}

testing::AssertionResult ToolWindow::getsScale(double scale) {
  scale_ = scale;
  if (waitUntil([this] { return hasItsSize(); })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "It isn't " << scaled(kWidth) << " pixels wide.";
}

bool ToolWindow::hasItsSize() const {
  return session_.windows.area(window()).width == scaled(kWidth);
}

testing::AssertionResult ToolWindow::getsPreview(const Preview& expected) const {
  const Pixels pixels = enlarged(expected);
  Pixels shown;
  const auto isShown = [&] {
    shown = preview();
    return shown == pixels;
  };
  if (waitUntil(isShown)) return testing::AssertionSuccess();
  const auto [is, should] = std::ranges::mismatch(shown, pixels);
  const auto at = is - shown.begin();
  const int width = scaled(Preview::kWidth);
  return testing::AssertionFailure() << "(" << at % width << ", " << at / width << ") of the preview is " << hex(*is)
                                     << ", not " << hex(*should);
}

}  // namespace tavrelkin::test
