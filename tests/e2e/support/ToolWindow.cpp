#include "e2e/support/ToolWindow.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

constexpr int kWidth = 448;
constexpr int kFoldedHeight = 262;
constexpr int kUnfoldedHeight = 400;
constexpr ScreenPoint kPreview{20, 33};
constexpr ScreenPoint kTriangle{29, 241};
constexpr ScreenPoint kSliderEnd{124, 359};  // beyond the handle while it is at the lower steps

bool isNear(std::uint32_t left, std::uint32_t right, int tolerance) {
  for (const int shift : {0, 8, 16}) {
    const auto a = static_cast<int>(left >> shift & 255);
    const auto b = static_cast<int>(right >> shift & 255);
    if (std::abs(a - b) > tolerance) return false;
  }
  return true;
}

// Empty if there is none.
std::string firstDifference(const Pixels& shown, const Pixels& expected, std::size_t width, int tolerance) {
  int count = 0;
  std::string first;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    if (isNear(shown[i], expected[i], tolerance)) continue;
    if (++count > 1) continue;
    char text[100];
    std::snprintf(text, sizeof text, "(%zu, %zu) is #%06X, not #%06X", i % width, i / width, shown[i], expected[i]);
    first = text;
  }
  return count == 0 ? "" : std::to_string(count) + " pixels differ; " + first;
}

}  // namespace

std::string titleOf(std::uint32_t rgb) {
  char text[60];
  std::snprintf(text, sizeof text, "Color: %u.%u.%u, #%06X", rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255, rgb);
  return text;
}

// Out of the way of the other windows of the tests, which stand more to the right and further down.
ToolWindow::ToolWindow(Session& session) : ToolWindow(session, session.waitForWindow("Color: ")) {
  session.bringToFront(window());
  moveTo(20, 20);
}

ToolWindow::ToolWindow(Session& session, xcb_window_t window) : ProgramWindow(session, window, kFoldedHeight) {}

testing::AssertionResult ToolWindow::paste(std::uint32_t rgb) {
  const std::string title = titleOf(rgb);
  session().clipboard.copy(title.substr(title.find('#')));
  keys("Ctrl+V");
  return getsTitleOf(rgb);
}

void ToolWindow::unfold() {
  const int before = session().windows.area(window()).height;
  click(kTriangle.x, kTriangle.y);
  const int after = before + kUnfoldedHeight - kFoldedHeight;
  if (!waitUntil([&] { return session().windows.area(window()).height == after; }))
    throw std::runtime_error("The window doesn't unfold.");
  setContentHeight(kUnfoldedHeight);
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
  return session().client.read({static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y),
                                static_cast<std::uint16_t>(scaled(kPreviewWidth)),
                                static_cast<std::uint16_t>(scaled(kPreviewHeight))});
}

// Each pixel as a block that ends where the next one begins.
Pixels ToolWindow::enlarged(const Pixels& preview) const {
  Pixels result;
  auto first = preview.begin();
  for (int y = 0; y < kPreviewHeight; ++y, first += kPreviewWidth) {
    for (int row = scaled(y); row < scaled(y + 1); ++row)
      for (int x = 0; x < kPreviewWidth; ++x)
        result.insert(result.end(), static_cast<std::size_t>(scaled(x + 1) - scaled(x)), first[x]);
  }
  return result;
}

testing::AssertionResult ToolWindow::getsScale(double scale) {
  setScale(scale);
  if (waitUntil([this] { return hasItsSize(); })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "It isn't " << scaled(kWidth) << " pixels wide.";
}

bool ToolWindow::hasItsSize() const {
  return session().windows.area(window()).width == scaled(kWidth);
}

testing::AssertionResult ToolWindow::getsTitleOf(std::uint32_t rgb) const {
  return getsTitle(titleOf(rgb));
}

testing::AssertionResult ToolWindow::getsPreview(const Preview& expected, int tolerance) const {
  const Pixels pixels = enlarged(expected.pixels());
  const auto width = static_cast<std::size_t>(scaled(kPreviewWidth));
  std::string difference;
  const auto isShown = [&] {
    difference = firstDifference(preview(), pixels, width, tolerance);
    return difference.empty();
  };
  if (waitUntil(isShown)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << difference;
}

}  // namespace tavrelkin::test
