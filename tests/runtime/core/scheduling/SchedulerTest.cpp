// The times at which threads get their turns.

#include <functional>
#include <vector>

#include "fakes/RuntimeTest.h"
#include "fakes/Worker.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

class SchedulerTest : public RuntimeTest {
 protected:
  // Makes a thread repeat `round` without an end. The second Run has no effect, since the thread runs already.
  static void repeat(Thread& thread, std::function<void()> round) {
    thread.RunEvent = [round = std::move(round)] {
      for (;;) {
        round();
        RuntimeBackgroundTask();
      }
    };
    thread.Run();
    thread.Run();
  }

  const Ref<Worker> window = New<Worker>();
};

TEST_F(SchedulerTest, DrawingIsPacedByTheFrameAndHastenedByThePointer) {
  std::vector<FakeDesktop::TimePoint> turns;
  std::chrono::nanoseconds length = 0ms;
  fake().frame = std::chrono::nanoseconds(16'666'667);
  repeat(window->thread, [&] {
    turns.push_back(fake().now());
    fake().costOfLook = length;
    fake().now();
    fake().costOfLook = 0ms;
    window->draw();
  });
  // The number of turns while the clock advances in steps of a millisecond.
  const auto turnsWithin = [&](int milliseconds, bool moving) {
    turns.clear();
    for (int i = 0; i < milliseconds; ++i) {
      if (moving) fake().movePointer({i, i});
      fake().advance(1ms);
    }
    return static_cast<int>(turns.size());
  };
  EXPECT_NEAR(turnsWithin(1000, false), 60, 1) << "one a frame";
  length = 50ms;
  EXPECT_GT(turnsWithin(10, false), 8) << "one right after the other";
  length = 0ms;
  EXPECT_NEAR(turnsWithin(160, false), 10, 1) << "nothing to catch up with";
  EXPECT_NEAR(turnsWithin(100, true), 25, 1) << "at each movement, and the frame adds none";
  for (std::size_t i = 2; i < turns.size(); ++i)
    EXPECT_GE(turns[i] - turns[i - 1], Scheduler::kPointerGap) << i;
  EXPECT_NEAR(turnsWithin(160, false), 10, 1) << "frame by frame again";

  fake().advance(10ms);
  EXPECT_EQ(turnsWithin(1, true), 1) << "at once";
  EXPECT_EQ(turnsWithin(1, true), 0) << "within the gap";
  EXPECT_EQ(turnsWithin(4, false), 1) << "the movement is not lost";
}

TEST_F(SchedulerTest, NoThreadStarves) {
  int mine = 0;
  int its = 0;
  repeat(window->thread, [&] { window->draw(), ++mine; });
  repeat(window->other, [&] { window->draw(), ++its; });
  for (int i = 0; i < 160; ++i)
    fake().advance(1ms);
  EXPECT_NEAR(mine, its, 1);
  EXPECT_GE(mine, 9);
}

TEST_F(SchedulerTest, AThreadThatDrawsNothingIsNeverHeldBack) {
  int rounds = 0;
  repeat(window->thread, [&] { ++rounds; });
  fake().costOfLook = 1ms;
  for (int turn = 1; turn <= 3; ++turn) {
    fake().turns = 0;
    fake().advance(0ms);
    EXPECT_EQ(fake().turns, 2) << "it reads a fresh screen, and so does what comes after it";
    EXPECT_LE(fake().nextAlarm(), 0ms);
  }
  EXPECT_GT(rounds, 2);
}

TEST_F(SchedulerTest, AYieldOnTheMainThreadGivesTurnsOnlyAfterLongWork) {
  int rounds = 0;
  repeat(window->thread, [&] { ++rounds; });
  Scheduler::instance().beginMainTurn();
  work();
  EXPECT_EQ(rounds, 0);
  fake().costOfLook = 1ms;
  work();
  EXPECT_GT(rounds, 0);
}

}  // namespace
}  // namespace tavrelkin
