#include "runtime/concurrency/Scheduler.h"
#include "runtime/concurrency/Thread.h"
#include "runtime/concurrency/Timer.h"
#include "runtime/gui/Canvas.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 100}) { canvas.place(0, 0, 10, 10); }
  ~Host() override {
    if (gone) *gone = true;
  }

  Canvas canvas{*this, "canvas"};
  Thread thread{*this, "thread"};
  Thread other{*this, "other"};
  Timer timer{*this, "timer"};
  bool* gone = nullptr;
};

class SchedulerTest : public RuntimeTest {
 protected:
  // Has a thread draw once in each round.
  void draw(Thread& thread, int& rounds) {
    thread.RunEvent = [this, &rounds] {
      for (;;) {
        ++rounds;
        window->canvas.Graphics().Pixel(rounds % 10, 0, kBlack);
        RuntimeBackgroundTask();
      }
    };
    thread.Run();
  }

  Ref<Host> window = New<Host>();
};

TEST_F(SchedulerTest, AThreadThatDrawsGetsOneTurnAFrameWithoutDrift) {
  int rounds = 0;
  fake().frame = std::chrono::nanoseconds(16'666'667);
  draw(window->thread, rounds);
  fake().advance(0ms);
  EXPECT_EQ(rounds, 1);
  // Each wake-up comes a little late, as with a timer that counts in milliseconds.
  for (int i = 0; i < 1000; ++i)
    fake().advance(1ms);
  EXPECT_NEAR(rounds, 61, 1);
}

TEST_F(SchedulerTest, AMovementOfThePointerBringsTheNextTurnAtOnceButNotTwiceInAGap) {
  int rounds = 0;
  draw(window->thread, rounds);
  fake().advance(5ms);
  ASSERT_EQ(rounds, 1);
  fake().movePointer({1, 1});
  fake().advance(0ms);
  EXPECT_EQ(rounds, 2);
  fake().movePointer({2, 2});
  fake().advance(1ms);
  EXPECT_EQ(rounds, 2);
  fake().advance(3ms);
  EXPECT_EQ(rounds, 3) << "the movement is not lost";
}

TEST_F(SchedulerTest, AThreadThatDrawsNothingIsNeverHeldBackAndLeavesWhenItsTurnIsOver) {
  int rounds = 0;
  fake().costOfLook = 1ms;
  window->thread.RunEvent = [&] {
    for (;;) {
      ++rounds;
      RuntimeBackgroundTask();
    }
  };
  window->thread.Run();
  fake().advance(0ms);
  const int first = rounds;
  EXPECT_GT(first, 32);
  EXPECT_LT(first, 32 * 5);
  EXPECT_LE(fake().nextAlarm(), 0ms);
  fake().advance(0ms);
  EXPECT_GT(rounds, first);
}

TEST_F(SchedulerTest, NoThreadStarves) {
  int mine = 0;
  int its = 0;
  draw(window->thread, mine);
  draw(window->other, its);
  for (int i = 0; i < 160; ++i)
    fake().advance(1ms);
  EXPECT_NEAR(mine, its, 1);
  EXPECT_GE(mine, 9);
}

TEST_F(SchedulerTest, AYieldOnTheMainThreadGivesTurnsOnlyAfterLongWork) {
  int rounds = 0;
  window->thread.RunEvent = [&] { ++rounds; };
  window->thread.Run();
  Scheduler::instance().beginMainTurn();
  for (int i = 0; i < 1000; ++i)
    RuntimeBackgroundTask();
  EXPECT_EQ(rounds, 0);
  fake().costOfLook = 1ms;
  for (int i = 0; i < 1000; ++i)
    RuntimeBackgroundTask();
  EXPECT_EQ(rounds, 1);
}

TEST_F(SchedulerTest, AThreadKeepsItsWindowUntilItEndsAndThePointerIsWatchedMeanwhile) {
  bool gone = false;
  window->gone = &gone;
  window->Show();
  bool go = true;
  window->thread.RunEvent = [&go] {
    while (go)
      RuntimeBackgroundTask();
  };
  window->thread.Run();
  window->thread.Run();
  EXPECT_TRUE(fake().watchesPointer());
  fake().costOfLook = 1ms;
  fake().advance(0ms);
  window->Close();
  window = nullptr;
  EXPECT_FALSE(gone);
  go = false;
  fake().advance(0ms);
  EXPECT_TRUE(gone);
  EXPECT_FALSE(fake().watchesPointer());
}

TEST_F(SchedulerTest, AFaultInAThreadIsToldOnceAndEndsTheProgram) {
  window->thread.RunEvent = [] { Ref<Host>()->Close(); };
  window->thread.Run();
  fake().advance(0ms);
  processEvents();
  ASSERT_EQ(fake().messages.size(), 1u);
  EXPECT_FALSE(window->thread.IsRunning());
}

TEST_F(SchedulerTest, ATimerRepeatsBeginsAfreshAndStops) {
  int rings = 0;
  window->timer.Action = [&] {
    if (++rings == 3) window->timer.Mode = 0;
  };
  window->timer.Period = 100;
  window->timer.Mode = 2;
  fake().advance(80ms);
  window->timer.Mode = 2;
  fake().advance(80ms);
  EXPECT_EQ(rings, 0);
  fake().advance(1000ms);
  EXPECT_EQ(rings, 3);
}

}  // namespace
}  // namespace tavrelkin
