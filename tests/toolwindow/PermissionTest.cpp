// A desktop that gives the screen only with the user's permission, or not at all.

#include "color/zrColorLib.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

constexpr Color kStart{0x70ABFF};

class PermissionTest : public ToolWindowTest {
 protected:
  PermissionTest() {
    fake().pointerAt = {300, 200};
    fake().tellsChanges = true;
    fake().screenState = ScreenState::notAsked;
    fake().requested = [this](FakeDesktop::Picked picked) {
      ++requests;
      picked_ = std::move(picked);
      if (fake().screenState == ScreenState::notAsked) fake().screenState = ScreenState::asking;
    };
  }

  void becomes(ScreenState state) {
    fake().screenState = state;
    fake().changeScreen();
    fake().advance(40ms);
  }

  String label() const { return window->view0_lblColor.Text; }

  int requests = 0;
  FakeDesktop::Picked picked_;
};

TEST_F(PermissionTest, FollowingBeginsWhenTheUserAllowsItAndRestsWithTheScreen) {
  const String before = label();
  window->flgLockX = true;
  choose("mnuFollow");
  fake().advance(1s);
  EXPECT_EQ(requests, 1);
  EXPECT_EQ(marks(), "mnuFollow ");
  EXPECT_TRUE(fake().pixelsRead.empty());
  EXPECT_EQ(label(), before);

  fake().pointerAt = {-5, 70};
  becomes(ScreenState::live);
  EXPECT_EQ(firstFaultOfSample({-5, 70}), "") << "the place where the pointer is now, not before it was known";
  fake().pixelsRead.clear();
  fake().advance(1s);
  EXPECT_TRUE(fake().pixelsRead.empty()) << "nothing has changed";
  fake().changeScreen();
  fake().advance(0ms);
  EXPECT_FALSE(fake().pixelsRead.empty());
}

TEST_F(PermissionTest, AChangeInTheMiddleOfASampleIsFollowed) {
  choose("mnuFollow");
  becomes(ScreenState::live);
  fake().changeScreen();
  stopInMidSample();
  fake().pointerAt = {500, 100};
  fake().changeScreen();
  fake().advance(50ms);
  EXPECT_EQ(firstFaultOfSample({500, 100}), "");
}

TEST_F(PermissionTest, FollowingEndsWithTheScreenAndLosesItsMark) {
  for (const ScreenState end : {ScreenState::refused, ScreenState::lost, ScreenState::notAsked}) {
    for (const bool beganFirst : {false, true}) {
      fake().screenState = ScreenState::notAsked;
      choose("mnuFollow");
      if (beganFirst) becomes(ScreenState::live);
      fake().advance(40ms);
      becomes(end);
      EXPECT_FALSE(window->flgTrackMouse);
      EXPECT_FALSE(window->pokeMouse.IsRunning());
      EXPECT_EQ(marks(), "");
    }
  }
}

TEST_F(PermissionTest, AGestureThatHasToAskTakesNothing) {
  const std::function<void()> gestures[] = {
      [] { choose("mnuPokeColor"); },
      [this] { gesture::click(window->imgScreen, 100, 100); },
      [this] { gesture::key(window->imgScreen, ' '); },
  };
  for (const auto& gesture : gestures) {
    requests = 0;
    fake().screenState = ScreenState::notAsked;
    gesture();
    gesture();
    EXPECT_GE(requests, 1);
    EXPECT_TRUE(fake().pixelsRead.empty());
    EXPECT_EQ(window->SelectedColor, kStart);

    fake().screenState = ScreenState::idle;
    gesture();
    EXPECT_EQ(window->SelectedColor, colorAt(300, 200));
    window->setColor(kStart, false);
    fake().pixelsRead.clear();
  }
}

// The colour under the pointer comes from the preview.
TEST_F(PermissionTest, WithoutTheScreenThePreviewsOwnPixelsCount) {
  choose("mnuViewSuggestions");
  const Color cell = shown(12, 12);
  gesture::hover(window->imgScreen, 12, 12);
  EXPECT_EQ(label(), getStdColorString(cell));
  gesture::click(window->imgScreen, 12, 12);
  EXPECT_EQ(window->SelectedColor, cell);
  gesture::press(window->imgScreen, 12, 12);
  gesture::dragTo(window->imgScreen, -30, 12);
  gesture::release(window->imgScreen, -30, 12);
  EXPECT_EQ(window->SelectedColor, cell);
  EXPECT_EQ(requests, 0);
  EXPECT_TRUE(fake().pixelsRead.empty());
}

TEST_F(PermissionTest, WhereTheUserPicksSingleColorsPokeTakesOneAndFollowingEnds) {
  fake().screenState = ScreenState::unavailable;
  fake().canPick = true;
  choose("mnuPokeColor");
  ASSERT_TRUE(picked_);
  EXPECT_EQ(window->SelectedColor, kStart);
  picked_(0x123456);
  EXPECT_EQ(window->SelectedColor, Color{0x123456});

  choose("mnuFollow");
  EXPECT_FALSE(picked_) << "the user is told";
  fake().advance(40ms);
  EXPECT_EQ(marks(), "");
  EXPECT_TRUE(fake().pixelsRead.empty());
}

// The desktop reports a movement of the pointer before it sends the pixels there.
TEST_F(PermissionTest, AMovementIsReadOnceMoreWhenTheScreenHasChanged) {
  fake().screenState = ScreenState::live;
  gesture::press(window->imgScreen, 100, 100);
  gesture::dragTo(window->imgScreen, 100, -50);
  fake().movePointer({500, 90});
  EXPECT_EQ(firstFaultOfSample({500, 90}), "");
  gesture::release(window->imgScreen, 100, -50);
  fake().movePointer({510, 90});
  EXPECT_EQ(firstFaultOfSample({500, 90}), "") << "the drag is over";

  gesture::hover(window->imgScreen, 10, 10);
  fake().movePointer({520, 90});
  EXPECT_EQ(label(), getStdColorString(colorAt(520, 90)));
  EXPECT_TRUE(waitUntil([this] { return !fake().watchesScreen(); })) << "a pointer that rests";
}

}  // namespace
}  // namespace tavrelkin
