// Following the pointer, locks and Poke, and the end of following.

#include "runtime/toolkit/Runtime.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

// A tool window that counts destroyed windows.
class MortalVesk : public frmVesk {
 public:
  static inline int ended = 0;
  ~MortalVesk() override { ++ended; }
};

class FollowTest : public ToolWindowTest {
 protected:
  FollowTest() {
    MortalVesk::ended = 0;
    fake().pointerAt = {300, 200};
  }
};

TEST_F(FollowTest, EachRoundShowsThePointersPlace) {
  choose("mnuFollow");
  EXPECT_TRUE(fake().pixelsRead.empty()) << "the first round comes from the event loop";
  for (const ScreenPoint at : {ScreenPoint{300, 200}, {-5, -900}}) {
    EXPECT_EQ(window->varLastX, fake().pointerAt.x);
    EXPECT_EQ(window->varLastY, fake().pointerAt.y);
    fake().movePointer(at);
    fake().advance(40ms);
    EXPECT_EQ(firstFaultOfSample(at), "");
  }
  EXPECT_EQ(window->varLastX, -5);
  EXPECT_EQ(window->view0_lblColor.Text.get(), "Color: 62.48.100, 256.52.39, #3E3064");
  choose("mnuFollow");
  EXPECT_EQ(marks(), "");
  EXPECT_FALSE(window->pokeMouse.IsRunning());
  fake().advance(1s);
  EXPECT_FALSE(fake().nextAlarm());
}

TEST_F(FollowTest, LocksHoldTheirCoordinate) {
  // X, Y and L are the three lock commands. At the n-th command the pointer is at (n, 10 n). After the last it moves to
  // (100, 200).
  const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
      {"XX", "2, 0", "{100, 200}", ""},
      {"YY", "0, 20", "{100, 200}", ""},
      {"XL", "2, 20", "{2, 20}", "mnuLock mnuLockX "},
      {"XYL", "1, 20", "{100, 200}", "mnuLockX mnuLockY "},
      {"XYLL", "4, 40", "{4, 40}", "mnuLock mnuLockX mnuLockY "},
      {"LXL", "3, 30", "{3, 30}", "mnuLock "},
      {"LY", "1, 20", "{1, 200}", "mnuLock "},
  };
  for (const auto& [commands, last, held, marked] : rows) {
    SCOPED_TRACE(commands);
    window->flgLockX = window->flgLockY = false;
    window->varLastX = window->varLastY = 0;
    for (const char* item : {"mnuLock", "mnuLockX", "mnuLockY"})
      window->MenuBar->Child(item)->Checked = false;
    fake().pointerAt = {0, 0};
    for (const char command : String(commands)) {
      fake().pointerAt = {fake().pointerAt.x + 1, fake().pointerAt.y + 10};
      gesture::shortcut(*window, String("Cmd+") + command);
    }
    EXPECT_EQ(Str(window->varLastX) + ", " + Str(window->varLastY), last);
    EXPECT_EQ(marks(), marked);
    fake().pointerAt = {100, 200};
    window->doTrackSysCursor();
    EXPECT_EQ(window->view0_lblcoordinates.Text.get(), held);
  }
  choose("mnuPokeColor");
  EXPECT_EQ(window->SelectedColor, colorAt(100, 200)) << "the locks hold the preview only";
  EXPECT_EQ(firstFaultOfSample({1, 200}), "");
  EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{1, 200}");
}

// Poke draws its whole sample while the thread is in the middle of another one, even if the thread gets turns meanwhile
// and both write to the newest picture.
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
    if (threadRunsMeanwhile) fake().advance(50ms);
    EXPECT_EQ(firstFaultOfSample({500, 100}), "");
    choose("mnuFollow");
  }
}

TEST_F(FollowTest, InTheMiddleOfASampleARepaintShowsWhatThereIsAndAZoomStepIsPutRightByTheNext) {
  choose("mnuFollow");
  fake().advance(1ms);
  stopInMidSample();
  choose("mnuFollow");
  EXPECT_EQ(firstFaultOfSample({300, 200}), "");
  window->imgScreen.Refresh(true);
  EXPECT_EQ(shown(2, 2), colorAt(249, 176));
  EXPECT_EQ(shown(400, 100), kWhite);
  choose("mnuFollow");
  stopInMidSample();
  zoomTo(3);
  fake().advance(50ms);
  EXPECT_EQ(firstFaultOfSample({300, 200}), "");
}

TEST_F(FollowTest, MinimisingStopsButLeavesTheMark) {
  choose("mnuFollow");
  stopInMidSample();
  gesture::minimise(*window);
  EXPECT_EQ(marks(), "mnuFollow ");
  window->Show();
  choose("mnuFollow");
  fake().pointerAt = {500, 100};
  fake().advance(50ms);
  EXPECT_EQ(firstFaultOfSample({500, 100}), "");
}

TEST_F(FollowTest, AFollowingWindowCanBeClosedAnyTime) {
  for (const bool byFrame : {false, true}) {
    for (const bool midSample : {false, true}) {
      MortalVesk::ended = 0;
      New<MortalVesk>()->Show();
      choose("mnuFollow");
      fake().advance(1ms);
      if (midSample) stopInMidSample();
      const Window& front = *Application::current().frontWindow();
      byFrame ? gesture::closeByFrame(front) : gesture::shortcut(front, "Cmd+W");
      fake().advance(50ms);
      EXPECT_EQ(MortalVesk::ended, 1);
      EXPECT_FALSE(fake().nextAlarm());
      EXPECT_FALSE(fake().watchesScreen());
      processEvents();
    }
  }
  EXPECT_EQ(Application::current().openWindows().size(), 1u);
}

TEST_F(FollowTest, QuittingWhileWindowsFollow) {
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
  choose("mnuFollow");  // the flag of the second window is clear, so it starts
  choose("mnuLockX");
  window->Show();
  EXPECT_EQ(marks(), "mnuFollow mnuLockX ");
  choose("mnuFollow");
  EXPECT_EQ(marks(), "mnuLockX ");
  EXPECT_TRUE(second->flgTrackMouse);
  EXPECT_FALSE(window->flgTrackMouse || window->flgLockX);
}

}  // namespace
}  // namespace tavrelkin
