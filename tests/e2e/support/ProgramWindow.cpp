#include "e2e/support/ProgramWindow.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

std::string hex(std::uint32_t rgb) {
  char text[10];
  std::snprintf(text, sizeof text, "#%06X", rgb);
  return text;
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
  // It may have been near before, and the frame takes some pixels: it is there when it rests.
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

void ProgramWindow::click(int x, int y) {
  session_.hand.click(onScreen(x, y));
}

void ProgramWindow::chooseFirst(int x) {
  choose(x, "Down");
}

void ProgramWindow::chooseLast(int x) {
  choose(x, "Up");
}

void ProgramWindow::choose(int x, const std::string& key) {
  session_.bringToFront(window_);
  click(x, -10);
  session_.hand.keys(key);
  session_.hand.rest();
  session_.hand.keys("Return");
}

testing::AssertionResult ProgramWindow::getsTitle(const std::string& expected) const {
  if (waitUntil([&] { return title() == expected; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "The title is \"" << title() << "\", not \"" << expected << "\".";
}

testing::AssertionResult ProgramWindow::gets(std::uint32_t rgb, int x, int y) const {
  if (waitUntil([&] { return shows(x, y) == rgb; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "(" << x << ", " << y << ") is " << hex(shows(x, y)) << ", not " << hex(rgb);
}

}  // namespace tavrelkin::test
