// Following the pointer, locks and Poke, and how all of it ends.

#include "runtime/Runtime.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using FollowTest = ToolWindowTest;

TEST_F(FollowTest, EachRoundShowsThePointersPlace) {
  fake().pointerAt = {300, 200};
  gesture::shortcut(*window, "Cmd+F");
  EXPECT_EQ(marks(), "mnuFollow ");
  EXPECT_EQ(window->varLastX, 300);
  EXPECT_EQ(window->varLastY, 200);
  EXPECT_TRUE(fake().pixelsRead.empty());  // the first round comes from the event loop

  for (const ScreenPoint at : {ScreenPoint{300, 200}, {-5, -900}}) {
    fake().movePointer(at);
    fake().advance(40ms);
    EXPECT_EQ(firstFaultOfSample(*window, at), "");
    EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{" + Str(at.x) + ", " + Str(at.y) + "}");
    EXPECT_EQ(window->varLastX, at.x);
    EXPECT_EQ(window->varLastY, at.y);
  }
  // A changing screen is followed under a still pointer.
  fake().screen = [](ScreenPoint) { return 0xFF8000u; };
  fake().advance(40ms);
  EXPECT_EQ(firstFault(*window, {1, [](Int32, Int32) { return Color{0xFF8000}; }, kBlack, 5}), "");
  const String label = window->view0_lblColor.Text;
  EXPECT_EQ(label, "Color: 255.128.0, 30.100.100, #FF8000");
  gesture::shortcut(*window, "Cmd+F");
  EXPECT_EQ(marks(), "");
  EXPECT_FALSE(window->pokeMouse.IsRunning());
  EXPECT_EQ(window->view0_lblColor.Text.get(), label);
  fake().pixelsRead.clear();
  fake().advance(1s);
  EXPECT_TRUE(fake().pixelsRead.empty());
  EXPECT_FALSE(fake().nextAlarm());
}

TEST_F(FollowTest, LocksHoldTheirCoordinate) {
  // X, Y and L are the three lock commands. With the n-th one the pointer is at (n, 10 n).
  const struct {
    const char* commands;
    bool x, y;
    Int32 lastX, lastY;
    const char* marks;
  } rows[] = {
      {"XX", false, false, 2, 0, ""},
      {"YY", false, false, 0, 20, ""},
      {"LL", false, false, 1, 10, ""},
      {"XL", true, true, 2, 20, "mnuLock mnuLockX "},
      {"XY", true, true, 1, 20, "mnuLockX mnuLockY "},
      {"XYL", false, false, 1, 20, "mnuLockX mnuLockY "},
      {"XYLL", true, true, 4, 40, "mnuLock mnuLockX mnuLockY "},
      {"LX", false, true, 2, 10, "mnuLock "},
      {"LXL", true, true, 3, 30, "mnuLock "},
      {"LY", true, false, 1, 20, "mnuLock "},
  };
  for (const auto& row : rows) {
    for (const char* item : {"mnuLock", "mnuLockX", "mnuLockY"})
      window->MenuBar->Child(item)->Checked = false;
    window = New<frmVesk>();
    window->Show();
    Int32 n = 0;
    for (const char command : String(row.commands)) {
      ++n;
      fake().pointerAt = {n, 10 * n};
      gesture::shortcut(*window, String("Cmd+") + command);
    }
    EXPECT_EQ(window->flgLockX, row.x) << row.commands;
    EXPECT_EQ(window->flgLockY, row.y) << row.commands;
    EXPECT_EQ(window->varLastX, row.lastX) << row.commands;
    EXPECT_EQ(window->varLastY, row.lastY) << row.commands;
    EXPECT_EQ(marks(), row.marks) << row.commands;

    fake().pointerAt = {100, 200};
    window->doTrackSysCursor();
    const ScreenPoint held{row.x ? row.lastX : 100, row.y ? row.lastY : 200};
    EXPECT_EQ(firstFaultOfSample(*window, held), "") << row.commands;
    EXPECT_EQ(window->varLastX, held.x) << row.commands;
    window->Close();
  }
}

TEST_F(FollowTest, PokeTakesTheColourAtThePointerWhileTheLabelsAndThePreviewAreHeld) {
  fake().pointerAt = {10, 20};
  choose("mnuLock");
  fake().pointerAt = {300, 200};
  choose("mnuPokeColor");
  EXPECT_EQ(window->SelectedColor, colorAt(300, 200));
  EXPECT_EQ(firstFaultOfSample(*window, {10, 20}), "");
  EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{10, 20}");
  EXPECT_EQ(Right(window->view0_lblColor.Text.get(), 6), "3F23FC");
}

// The poke's own sample is drawn whole while the thread stands in the middle of one, also where the thread gets turns
// in between and both write into the newest picture.
TEST_F(FollowTest, PokeInTheMiddleOfASample) {
  for (const bool threadRunsMeanwhile : {false, true}) {
    fake().pointerAt = {300, 200};
    choose("mnuFollow");
    stopInMidSample();
    fake().pointerAt = {500, 100};
    if (threadRunsMeanwhile) fake().costOfLook = 100us;
    choose("mnuPokeColor");
    fake().costOfLook = 0ms;
    EXPECT_EQ(window->SelectedColor, colorAt(500, 100));
    if (!threadRunsMeanwhile) {
      EXPECT_EQ(firstFaultOfSample(*window, {500, 100}), "");
    }
    EXPECT_EQ(marks(), "mnuFollow ");
    fake().advance(50ms);
    EXPECT_EQ(firstFaultOfSample(*window, {500, 100}), "");
    choose("mnuFollow");
  }
}

TEST_F(FollowTest, StoppedInTheMiddleOfASampleARepaintShowsWhatThereIs) {
  fake().pointerAt = {300, 200};
  choose("mnuFollow");
  fake().advance(1ms);
  stopInMidSample();
  choose("mnuFollow");
  EXPECT_FALSE(window->pokeMouse.IsRunning());
  EXPECT_EQ(firstFaultOfSample(*window, {300, 200}), "");
  window->imgScreen.Refresh(true);
  EXPECT_EQ(window->imgScreen.Graphics().Pixel(2, 2), colorAt(249, 176));
  EXPECT_EQ(window->imgScreen.Graphics().Pixel(400, 100), kWhite);
  EXPECT_EQ(window->zoomImage->Graphics().Pixel(102, 48), kWhite);
}

TEST_F(FollowTest, AZoomStepInTheMiddleOfASampleIsPutRightByTheNext) {
  fake().pointerAt = {300, 200};
  choose("mnuFollow");
  stopInMidSample();
  zoomTo(3);
  fake().advance(50ms);
  EXPECT_EQ(firstFaultOfSample(*window, {300, 200}), "");
}

TEST_F(FollowTest, MinimisingStopsButLeavesTheMark) {
  for (const bool midSample : {false, true}) {
    choose("mnuFollow");
    fake().advance(1ms);
    if (midSample) stopInMidSample();
    gesture::minimise(*window);
    EXPECT_FALSE(window->flgTrackMouse);
    EXPECT_EQ(marks(), "mnuFollow ");
    if (!midSample) {
      fake().advance(50ms);
      EXPECT_FALSE(window->pokeMouse.IsRunning());
    }
    window->Show();
    choose("mnuFollow");
    EXPECT_EQ(marks(), "mnuFollow ");
    fake().pointerAt = {midSample ? 500 : 600, 100};
    fake().advance(50ms);
    EXPECT_EQ(firstFaultOfSample(*window, fake().pointerAt), "");
    choose("mnuFollow");
    EXPECT_EQ(marks(), "");
  }
}

TEST_F(FollowTest, AFollowingWindowCanBeClosedAnyTime) {
  const std::function<void(frmVesk&)> ways[] = {
      [](frmVesk& w) { gesture::closeByFrame(w); },
      [](frmVesk& w) { gesture::shortcut(w, "Cmd+W"); },
  };
  for (const auto& close : ways) {
    for (const bool midSample : {false, true}) {
      MortalVesk::ended = 0;
      {
        const Ref<frmVesk> mortal = New<MortalVesk>();
        mortal->Show();
        choose("mnuFollow");
        fake().advance(1ms);
        if (midSample) stopInMidSample();
        close(*mortal);
        EXPECT_FALSE(mortal->isOpen());
        EXPECT_FALSE(mortal->flgTrackMouse);
      }
      fake().advance(50ms);
      EXPECT_EQ(MortalVesk::ended, 1);
      EXPECT_FALSE(fake().nextAlarm());
      EXPECT_FALSE(fake().watchesPointer());
      processEvents();
    }
  }
  EXPECT_EQ(Application::current().openWindows().size(), 1u);
}

TEST_F(FollowTest, QuittingWhileWindowsFollow) {
  MortalVesk::ended = 0;
  for (int i = 0; i < 2; ++i) {
    New<MortalVesk>()->Show();
    choose("mnuFollow");
  }
  fake().advance(1ms);
  stopInMidSample();
  runUntilQuit([] { gesture::shortcut(*Application::current().frontWindow(), "Cmd+Q"); });
  shutDownRuntime();
  EXPECT_EQ(MortalVesk::ended, 2);
}

TEST_F(FollowTest, TwoWindowsShareTheMarks) {
  choose("mnuFollow");
  const Ref<frmVesk> second = New<frmVesk>();
  second->Show();
  EXPECT_EQ(marks(), "mnuFollow ");
  choose("mnuFollow");  // finds its own flag clear, and starts
  choose("mnuLockX");
  window->Show();
  EXPECT_EQ(marks(), "mnuFollow mnuLockX ");
  choose("mnuFollow");
  EXPECT_EQ(marks(), "mnuLockX ");
  EXPECT_FALSE(window->flgTrackMouse);
  EXPECT_TRUE(second->flgTrackMouse);
  EXPECT_FALSE(window->flgLockX);
}

}  // namespace
}  // namespace tavrelkin
