#pragma once

#include "app/menubar/MenuBar1.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

using namespace std::chrono_literals;

// A tool window in front of a screen whose every pixel tells where it lies.
class ToolWindowTest : public RuntimeTest {
 protected:
  // What the preview should show.
  struct Preview {
    Int32 step = 1;
    std::function<Color(Int32 column, Int32 row)> cell;
    Color marker;
    Int32 markerSize = 0;
    bool guides = false;

    Color at(Int32 x, Int32 y) const {
      const Int32 side = 4 * step;
      const auto onOutline = [](Int32 fromLeft, Int32 fromTop, Int32 width, Int32 height) {
        const bool inside = 0 <= fromLeft && fromLeft < width && 0 <= fromTop && fromTop < height;
        return inside && (fromLeft == 0 || fromLeft == width - 1 || fromTop == 0 || fromTop == height - 1);
      };
      if (onOutline(x, y, 408, 192)) return kWhite;
      if (onOutline(x - reachX(step) * side, y - reachY(step) * side, markerSize, markerSize)) return marker;
      if (guides && (x % side == 0 || y % side == 0)) return Color{0xCECECE};
      return cell(x / side, y / side);
    }
  };

  ToolWindowTest() {
    fake().screen = placeAsColor;
    Application::current().MenuBar = MenuBar1::Instance();
    window = frmVesk::Default();
  }

  static std::uint32_t placeAsColor(ScreenPoint at) {
    return static_cast<std::uint32_t>((at.x + 1000) % 4096 * 4096 + (at.y + 1000) % 4096);
  }
  static Color colorAt(Int32 x, Int32 y) { return Color{placeAsColor({x, y})}; }
  // How far a sample reaches around its centre.
  static Int32 reachX(Int32 step) { return 51 / step; }
  static Int32 reachY(Int32 step) { return 24 / step; }

  // A menu command reaches the front window.
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }

  // The marked items of the menu bar, in the order of the menus, each with a blank behind it.
  static String marks() { return marksOf(Application::current().MenuBar->menus()); }
  static String marksOf(const std::vector<Ref<MenuItem>>& items) {
    String found;
    for (const Ref<MenuItem>& item : items)
      found += (item->Checked ? item->Name() + " " : "") + marksOf(item->items());
    return found;
  }
  // A new window in place of the one there is, with nothing marked.
  void startAnew() {
    window->Close();
    for (const char* item : {"mnuFollow", "mnuViewSuggestions", "mnuShowColors", "mnuColorBlind", "mnuShowGuide",
                             "mnuLock", "mnuLockX", "mnuLockY"})
      MenuBar1::Instance()->Child(item)->Checked = false;
    window = New<frmVesk>();
    window->Show();
  }

  // The user moves the zoom slider there, with the keyboard.
  void zoomTo(Int32 step) const {
    constexpr int kLeft = 0x01000012;
    constexpr int kRight = 0x01000014;
    for (int presses = 0; window->slZoom.Value != step && presses < 2; ++presses)
      gesture::key(window->slZoom, window->slZoom.Value < step ? kRight : kLeft);
    ASSERT_EQ(window->ScreenZoomValue, step);
  }

  // Lets the window's thread work for at most one turn that ends in the middle of a sample.
  void stopInMidSample() {
    fake().pixelsRead.clear();
    fake().costOfLook = 5ms;
    fake().advance(20ms);
    fake().costOfLook = 0ms;
    EXPECT_GT(fake().pixelsRead.size(), 2u);
    EXPECT_LT(fake().pixelsRead.size(), 100u);
  }

  // What a sample of the screen shows at a step.
  static std::function<Color(Int32, Int32)> sampleOf(ScreenPoint centre, Int32 step) {
    return [=](Int32 column, Int32 row) {
      return colorAt(centre.x - reachX(step) + column, centre.y - reachY(step) + row);
    };
  }
  // The first pixel of the preview that is not as it should be, or nothing.
  String firstFault(const Preview& wanted) const {
    for (Int32 y = 0; y < 192; ++y) {
      for (Int32 x = 0; x < 408; ++x) {
        const Color is = window->imgScreen.Graphics().Pixel(x, y);
        if (is != wanted.at(x, y)) return Str(x) + ", " + Str(y) + ": " + Hex(static_cast<Int32>(is.bits));
      }
    }
    return "";
  }
  // The same for a window that has just drawn a sample.
  String firstFaultOfSample(ScreenPoint centre) const {
    const Int32 step = window->ScreenZoomValue;
    const Color marker = readColorValue(colorAt(centre.x, centre.y)) < 0.5 ? Color{0xF97324} : kBlack;
    return firstFault({step, sampleOf(centre, step), marker, 4 * step + 1, window->flgDrawGuide});
  }

  Ref<frmVesk> window;
};

}  // namespace tavrelkin
