// Threads that yield, draw or end in the middle of the toolkit's work or that of other threads.

#include <memory>
#include <string>

#include "fakes/RuntimeTest.h"
#include "fakes/Worker.h"
#include "runtime/core/concurrency/Timer.h"
#include "runtime/desktop/Fiber.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

// Logs its destruction, and yields for some turns in its destructor.
struct Mark {
  std::string& log;
  ~Mark() {
    work();
    log += "unwound ";
  }
};

class Host : public Worker {
 public:
  explicit Host(std::string& events) : log(events) {}
  ~Host() override { log += "gone "; }
  void Event_Close() override { log += "close "; }

  std::string& log;
  Timer timer{*this, "timer"};
};

class ThreadTest : protected Log, public RuntimeTest {
 protected:
  Ref<Host> window = New<Host>(log);
  bool killsItself = false;
};

TEST_F(ThreadTest, AFaultInAThreadIsTold) {
  window->thread.RunEvent = [] { Ref<Host>()->Close(); };
  window->thread.Run();
  fake().advance(0ms);
  processEvents();
  EXPECT_EQ(fake().messages.size(), 1u);
  EXPECT_FALSE(window->thread.IsRunning());
}

TEST_F(ThreadTest, ATimerRepeatsUntilItIsStopped) {
  window->timer.Action = [this] {
    log += "ring ";
    if (log == "ring ring ") window->timer.Mode = 0;
  };
  window->timer.Period = 100;
  window->timer.Mode = 2;
  fake().advance(1s);
  EXPECT_EQ(log, "ring ring ");
}

TEST_F(ThreadTest, KillUnwindsAThreadWhoseDestructorsYieldWhoeverCallsIt) {
  fake().costOfLook = 1ms;
  const auto kill = [this] {
    window->thread.Kill();
    log += window->thread.IsRunning() ? "runs " : "ended ";
  };
  const struct {
    const char* killer;
    std::function<void()> kill;
    const char* log;
  } rows[] = {
      {"main thread", kill, "unwound ended "},
      {"other thread", [this] { window->other.Run(), work(), work(); }, "unwound ended "},
      {"nobody", [] { Scheduler::shutDown(); }, "unwound "},
      {"itself", [this] { killsItself = true, work(); }, "unwound "},
  };
  window->other.RunEvent = [&kill] {
    kill();
    for (int i = 0; i < 64; ++i)
      RuntimeBackgroundTask();
  };
  window->thread.RunEvent = [this] {
    const Mark mark{log};
    while (!killsItself)
      RuntimeBackgroundTask();
    window->thread.Kill();
  };
  for (const auto& row : rows) {
    log.clear();
    window->thread.Run();
    fake().advance(0ms);
    ASSERT_TRUE(window->thread.IsRunning()) << row.killer;
    row.kill();
    EXPECT_EQ(log, row.log) << row.killer;
    EXPECT_FALSE(window->thread.IsRunning() || fake().watchesScreen()) << row.killer;
  }
  window->thread.Run();
  kill();
  EXPECT_EQ(log, "unwound ended ") << "it never began";
}

TEST(FiberTest, UnwindsItsStackWhereItIsDestroyed) {
  auto held = std::make_shared<int>();
  auto fiber = std::make_unique<Fiber>([&held] {
    const auto mine = held;
    Fiber::suspend();
    held = nullptr;
  });
  fiber->resume();
  fiber.reset();
  EXPECT_EQ(held.use_count(), 1);
}

// Otherwise the toolkit would continue its half-done work at any later time, or be unwound in the middle of it.
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
  fake().advance(0ms);
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

// A window closes itself when nobody else holds a reference to it. It is destroyed when its thread or timer is done.
TEST_F(ThreadTest, AWindowGoesWhenItsOwnThreadOrTimerThatClosedItIsDone) {
  for (const bool byThread : {true, false}) {
    Host& host = *(window = New<Host>(log));
    log.clear();
    host.Show();
    host.thread.RunEvent = [&host] {
      host.Close();
      host.draw();
      host.log += "done ";
    };
    host.timer.Action = [&host] { host.thread.RunEvent(); };
    if (byThread) {
      host.thread.Run();
    } else {
      host.timer.Mode = 2;
    }
    window = nullptr;
    fake().advance(1s);
    processEvents();
    EXPECT_EQ(log, "close done gone ") << byThread;
  }
}

}  // namespace
}  // namespace tavrelkin
