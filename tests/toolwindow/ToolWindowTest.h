#pragma once

#include "support/Gestures.h"
#include "support/RuntimeTest.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

using namespace std::chrono_literals;

// What the preview should show.
struct Preview {
  Int32 step = 1;
  std::function<Color(Int32 column, Int32 row)> cell;
  Color marker;
  Int32 markerSize = 0;
  bool guides = false;
};

// How far a sample reaches around its centre, by zoom step.
struct Reach {
  Int32 x;
  Int32 y;
};
Reach reachOf(Int32 step);

// A tool window in front of a screen whose every pixel tells where it lies.
class ToolWindowTest : public RuntimeTest {
 protected:
  ToolWindowTest();

  static std::uint32_t placeAsColor(ScreenPoint at);
  static Color colorAt(Int32 x, Int32 y) { return Color{placeAsColor({x, y})}; }

  // A menu command reaches the front window.
  static void choose(const String& item);
  // The marked items of the menu bar, in the order of the menus, each with a blank behind it.
  static String marks();

  // The user moves the zoom slider there, with the keyboard.
  void zoomTo(Int32 step) const;

  // Lets the window's thread work for at most one turn that ends in the middle of a sample.
  void stopInMidSample();

  // What a sample of the screen shows at a step.
  static std::function<Color(Int32, Int32)> sampleOf(ScreenPoint centre, Int32 step);
  // The first pixel of the preview that is not as it should be, or nothing.
  static String firstFault(frmVesk& shown, const Preview& wanted);
  // The same for a window that has just drawn a sample of light or dark pixels.
  static String firstFaultOfSample(frmVesk& shown, ScreenPoint centre);

  Ref<frmVesk> window;
};

// A tool window whose end can be seen.
class MortalVesk : public frmVesk {
 public:
  static inline int ended = 0;
  ~MortalVesk() override { ++ended; }
};

}  // namespace tavrelkin
