#pragma once

#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "menubar/MenuBar1.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

using namespace std::chrono_literals;

// A test with a tool window, and a screen on which the colour of each pixel encodes its position.
class ToolWindowTest : public RuntimeTest {
 protected:
  ToolWindowTest() {
    fake().screen = placeAsColor;
    Application::current().MenuBar = MenuBar1::Instance();
    window = frmVesk::Default();
  }

  static std::uint32_t placeAsColor(ScreenPoint at) {
    return static_cast<std::uint32_t>((at.x + 1000) % 4096 * 4096 + (at.y + 1000) % 4096);
  }
  static Color colorAt(Int32 x, Int32 y) { return Color{placeAsColor({x, y})}; }
  // The number of pixels that a sample has on each side of its centre.
  static Int32 reachX(Int32 step) { return 51 / step; }
  static Int32 reachY(Int32 step) { return 24 / step; }

  // A menu command reaches the front window.
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }

  // The names of the marked items of the menu bar, in the order of the menus, each followed by a blank.
  static String marks() { return marksOf(Application::current().MenuBar->menus()); }
  static String marksOf(const std::vector<Ref<MenuItem>>& items) {
    String found;
    for (const Ref<MenuItem>& item : items)
      found += (item->Checked ? item->Name() + " " : "") + marksOf(item->items());
    return found;
  }
  void zoomTo(Int32 step) const {
    window->slZoom.Value = step;
    window->slZoom_ValueChanged();
  }

  // Lets the window's thread work for at most one turn that ends in the middle of a sample.
  void stopInMidSample() {
    fake().pixelsRead.clear();
    fake().costOfLook = 5ms;
    fake().advance(20ms);
    fake().costOfLook = 0ms;
    EXPECT_EQ(fake().pixelsRead.size() / 100, 0u);
    EXPECT_GT(fake().pixelsRead.size(), 2u);
  }

  // The expected cells of a sample around a position of the screen, at a zoom step.
  using Cells = std::function<Color(Int32 column, Int32 row)>;
  static Cells sampleOf(ScreenPoint centre, Int32 step) {
    return [=](Int32 column, Int32 row) {
      return colorAt(centre.x - reachX(step) + column, centre.y - reachY(step) + row);
    };
  }
  Color shown(Int32 x, Int32 y) const { return window->imgScreen.Graphics().Pixel(x, y); }
  // The column and row of the first cell of the preview with a wrong colour inside its lines; empty if there is none.
  String firstFault(const Cells& wanted) const {
    const Int32 side = 4 * window->ScreenZoomValue;
    for (Int32 column = 0; column < 408 / side; ++column) {
      for (Int32 row = 0; row < 192 / side; ++row) {
        if (shown(column * side + 2, row * side + 2) != wanted(column, row)) return Str(column) + ", " + Str(row);
      }
    }
    return "";
  }
  String firstFaultOfSample(ScreenPoint centre) const { return firstFault(sampleOf(centre, window->ScreenZoomValue)); }

  Ref<frmVesk> window;
};

}  // namespace tavrelkin
