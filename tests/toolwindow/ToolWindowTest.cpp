#include "toolwindow/ToolWindowTest.h"

#include <array>

#include "menubar/MenuBar1.h"

namespace tavrelkin {

namespace {

constexpr std::array kReach{Reach{51, 24}, Reach{25, 12}, Reach{17, 8}};
constexpr int kKeyLeft = 0x01000012;
constexpr int kKeyRight = 0x01000014;

void collectMarks(const std::vector<Ref<MenuItem>>& items, String& found) {
  for (const Ref<MenuItem>& item : items) {
    if (item->Checked) found += item->Name() + " ";
    collectMarks(item->items(), found);
  }
}

bool onOutline(Int32 x, Int32 y, Int32 left, Int32 top, Int32 width, Int32 height) {
  const Int32 right = left + width - 1;
  const Int32 bottom = top + height - 1;
  const bool inside = left <= x && x <= right && top <= y && y <= bottom;
  return inside && (x == left || x == right || y == top || y == bottom);
}

Color wantedAt(const Preview& wanted, Int32 x, Int32 y) {
  const Int32 cell = 4 * wanted.step;
  const Reach reach = reachOf(wanted.step);
  if (onOutline(x, y, 0, 0, 408, 192)) return kWhite;
  if (onOutline(x, y, reach.x * cell, reach.y * cell, wanted.markerSize, wanted.markerSize)) return wanted.marker;
  if (wanted.guides && (x % cell == 0 || y % cell == 0)) return Color{0xCECECE};
  return wanted.cell(x / cell, y / cell);
}

}  // namespace

Reach reachOf(Int32 step) {
  return kReach.at(static_cast<std::size_t>(step - 1));
}

ToolWindowTest::ToolWindowTest() {
  fake().screen = placeAsColor;
  Application::current().MenuBar = MenuBar1::Instance();
  window = frmVesk::Default();
}

std::uint32_t ToolWindowTest::placeAsColor(ScreenPoint at) {
  return static_cast<std::uint32_t>((at.x + 1000) % 4096 * 4096 + (at.y + 1000) % 4096);
}

void ToolWindowTest::choose(const String& item) {
  EXPECT_TRUE(Application::current().MenuBar->Child(item)->Enabled) << item;
  EXPECT_TRUE(Application::current().dispatch(item)) << item;
}

String ToolWindowTest::marks() {
  String found;
  collectMarks(Application::current().MenuBar->menus(), found);
  return found;
}

void ToolWindowTest::zoomTo(Int32 step) const {
  while (window->slZoom.Value != step) {
    const Int32 before = window->slZoom.Value;
    gesture::key(window->slZoom, before < step ? kKeyRight : kKeyLeft);
    ASSERT_NE(window->slZoom.Value, before);
  }
}

void ToolWindowTest::stopInMidSample() {
  const std::size_t before = fake().pixelsRead.size();
  fake().costOfLook = 5ms;
  fake().advance(20ms);
  fake().costOfLook = 0ms;
  const std::size_t reads = fake().pixelsRead.size() - before;
  EXPECT_GT(reads, 2u);
  EXPECT_LT(reads, 100u);
}

std::function<Color(Int32, Int32)> ToolWindowTest::sampleOf(ScreenPoint centre, Int32 step) {
  const Reach reach = reachOf(step);
  return [=](Int32 column, Int32 row) { return colorAt(centre.x - reach.x + column, centre.y - reach.y + row); };
}

String ToolWindowTest::firstFault(frmVesk& shown, const Preview& wanted) {
  for (Int32 y = 0; y < 192; ++y) {
    for (Int32 x = 0; x < 408; ++x) {
      const Color is = shown.imgScreen.Graphics().Pixel(x, y);
      const Color should = wantedAt(wanted, x, y);
      if (is != should)
        return Str(x) + ", " + Str(y) + ": " + Hex(static_cast<Int32>(is.bits)) + ", not " +
               Hex(static_cast<Int32>(should.bits));
    }
  }
  return "";
}

String ToolWindowTest::firstFaultOfSample(frmVesk& shown, ScreenPoint centre) {
  const Int32 step = shown.ScreenZoomValue;
  const Color marker = readColorValue(colorAt(centre.x, centre.y)) < 0.5 ? Color{0xF97324} : kBlack;
  return firstFault(shown, {step, sampleOf(centre, step), marker, 4 * step + 1, shown.flgDrawGuide});
}

}  // namespace tavrelkin
