// What a thread may do in the middle of the toolkit's and of other threads' work.

#include <string>

#include "runtime/concurrency/Scheduler.h"
#include "runtime/concurrency/Thread.h"
#include "runtime/concurrency/Timer.h"
#include "runtime/gui/Canvas.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

// Writes down when it goes, which takes it some yields.
struct Mark {
  std::string& log;
  const char* text;
  ~Mark() {
    for (int i = 0; i < 1000; ++i)
      RuntimeBackgroundTask();
    log += text;
  }
};

class Host : public Window {
 public:
  explicit Host(std::string& events) : Window({.title = "Host", .width = 100, .height = 100}), log(events) {
    canvas.place(0, 0, 10, 10);
    canvas.Visible = false;
  }
  ~Host() override { log += "gone "; }
  void Event_Close() override { log += "close "; }

  std::string& log;
  Canvas canvas{*this, "canvas"};
  Thread thread{*this, "thread"};
  Thread other{*this, "other"};
  Timer timer{*this, "timer"};
};

// Outlives the windows, which write in it to the last.
struct Log {
  std::string log;
};

class ThreadTest : protected Log, public RuntimeTest {
 protected:
  // Yields until its turn is over, some turns long.
  static void work() {
    for (int i = 0; i < 1000; ++i)
      RuntimeBackgroundTask();
  }
  void takeTurns(int count) {
    for (int i = 0; i < count; ++i)
      fake().advance(0ms);
  }

  Ref<Host> window = New<Host>(log);
};

TEST_F(ThreadTest, KillUnwindsAThreadWhoseDestructorsYield) {
  fake().costOfLook = 1ms;
  window->thread.RunEvent = [this] {
    const Mark mark{log, "unwound "};
    for (;;)
      RuntimeBackgroundTask();
  };
  window->thread.Run();
  takeTurns(2);
  EXPECT_TRUE(window->thread.IsRunning());
  window->thread.Kill();
  EXPECT_EQ(log, "unwound ");
  EXPECT_FALSE(window->thread.IsRunning());
  window->thread.Run();
  takeTurns(1);
  EXPECT_TRUE(window->thread.IsRunning());
}

// Else the toolkit would go on with its half-done work at any later time, or be unwound in the middle of it.
TEST_F(ThreadTest, AThreadKeepsItsTurnWhileTheToolkitIsOnItsStack) {
  window->Show();
  fake().costOfLook = 1ms;
  window->canvas.Paint = [this](Graphics*) {
    work();
    log += "painted ";
  };
  window->thread.RunEvent = [this] {
    window->canvas.Visible = true;
    log += "shown ";
    work();
    log += "never";
  };
  window->thread.Run();
  takeTurns(1);
  EXPECT_EQ(log, "painted shown ");
  window->thread.Kill();
  EXPECT_EQ(log, "painted shown ");
}

TEST_F(ThreadTest, AThreadIsSuspendedAlsoWhenAHandlerOfTheMainThreadHasGivenItsTurn) {
  window->Show();
  fake().costOfLook = 1ms;
  window->thread.RunEvent = [this] {
    log += "begun ";
    work();
    log += "ended ";
  };
  window->canvas.Paint = [this](Graphics*) {
    for (int i = 0; i < 64; ++i)
      RuntimeBackgroundTask();
    log += "painted ";
  };
  window->thread.Run();
  Scheduler::instance().beginMainTurn();
  window->canvas.Visible = true;
  EXPECT_EQ(log, "begun painted ");
}

TEST_F(ThreadTest, OneThreadKillsAnother) {
  fake().costOfLook = 1ms;
  window->other.RunEvent = [this] {
    const Mark mark{log, "unwound "};
    for (;;)
      RuntimeBackgroundTask();
  };
  window->thread.RunEvent = [this] {
    work();
    window->other.Kill();
    log += window->other.IsRunning() ? "runs " : "ended ";
  };
  window->other.Run();
  window->thread.Run();
  for (int i = 0; i < 100 && window->thread.IsRunning(); ++i)
    takeTurns(1);
  EXPECT_EQ(log, "unwound ended ");
}

// The ways in which a window closes itself while it is nobody's any more. It goes once whoever closed it is done.
TEST_F(ThreadTest, AWindowGoesWhenItsOwnThreadOrTimerThatClosedItIsDone) {
  for (const bool byThread : {true, false}) {
    log.clear();
    Host& host = *(window = New<Host>(log));
    log.clear();
    host.Show();
    const auto closes = [&host] {
      host.Close();
      host.canvas.Graphics().Pixel(0, 0, kBlack);
      host.log += "done ";
    };
    if (byThread) {
      host.thread.RunEvent = closes;
      host.thread.Run();
    } else {
      host.timer.Action = closes;
      host.timer.Mode = 2;
    }
    window = nullptr;
    fake().advance(1s);
    processEvents();
    EXPECT_EQ(log, "close done gone ") << byThread;
    fake().advance(3s);
  }
}

TEST_F(ThreadTest, ThePaceHoldsWhenTurnsTakeLongAndWhenThePointerMoves) {
  std::vector<FakeDesktop::TimePoint> turns;
  std::chrono::nanoseconds length = 0ms;
  window->thread.RunEvent = [&] {
    for (;;) {
      turns.push_back(fake().now());
      fake().costOfLook = length;
      fake().now();
      fake().costOfLook = 0ms;
      window->canvas.Graphics().Pixel(0, 0, kBlack);
      RuntimeBackgroundTask();
    }
  };
  window->thread.Run();
  fake().advance(1ms);

  // Longer than a frame: a turn right after the other, and nothing to catch up with afterwards.
  length = 50ms;
  fake().advance(500ms);
  length = 0ms;
  fake().advance(50ms);
  turns.clear();
  fake().advance(160ms);
  EXPECT_EQ(turns.size(), 10u);

  // A movement each millisecond: no two turns closer than the gap, and the frame adds none.
  turns.clear();
  for (int i = 0; i < 100; ++i) {
    fake().movePointer({i, i});
    fake().advance(1ms);
  }
  EXPECT_NEAR(static_cast<double>(turns.size()), 25, 1);
  for (std::size_t i = 2; i < turns.size(); ++i)
    EXPECT_GE(turns[i] - turns[i - 1], Scheduler::kPointerGap) << i;

  // Still again: frame by frame.
  fake().advance(100ms);
  turns.clear();
  fake().advance(160ms);
  EXPECT_EQ(turns.size(), 10u);
}

}  // namespace
}  // namespace tavrelkin
