#include <chrono>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "driver/EventLoop.h"
#include "driver/Session.h"
#include "runtime/desktop/native/NativeDesktop.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(NativeDesktop, RingsAlarmsOnceAndTellsTheLengthOfAFrame) {
  const auto desktop = makeNativeDesktop();
  EXPECT_GE(desktop->frameInterval(), 1ms);

  std::string rung;
  const auto early = desktop->newAlarm([&] { rung += 'e'; });
  const auto late = desktop->newAlarm([&] { rung += 'l'; });
  const auto cancelled = desktop->newAlarm([&] { rung += 'c'; });
  auto destroyed = desktop->newAlarm([&] { rung += 'd'; });
  const auto start = Clock::now();
  late->set(1ns);
  late->set(20ms);
  early->set(-1s);
  cancelled->set(0ns);
  destroyed->set(0ns);
  cancelled->cancel();
  destroyed.reset();
  EXPECT_EQ(rung, "") << "only from the event loop";
  EXPECT_TRUE(eventually([&] { return rung.size() >= 2; }));
  EXPECT_EQ(rung, "el");
  EXPECT_GE(Clock::now() - start, 20ms);
}

// The event loop, a read or a question may find the loss. A write to a closed socket must not end the process.
TEST(LostConnectionTest, IsToldOnceHoweverItIsFound) {
  std::vector<std::string> losses;
  const std::function<void(ScreenReader&)> ways[] = {
      [&](ScreenReader&) { EXPECT_TRUE(eventually([&] { return !losses.empty(); })); },
      [](ScreenReader& reader) {
        reader.beginTurn();
        reader.pixel({10, 10});
      },
      [](ScreenReader& reader) { EXPECT_FALSE(reader.optionKey()); },
  };
  for (const auto& find : ways) {
    losses.clear();
    XServer server;
    X11Client(server.display()).movePointer(123, 45);
    const QByteArray usual = qgetenv("DISPLAY");
    qputenv("DISPLAY", server.display().c_str());
    const auto reader = makeX11ScreenReader([&](const std::string& message) { losses.push_back(message); });
    qputenv("DISPLAY", usual);
    ASSERT_TRUE(reader);
    ASSERT_EQ(reader->pointer(), (ScreenPoint{123, 45}));

    server.kill();
    find(*reader);
    EXPECT_EQ(losses.size(), 1U);
    for (int turn = 0; turn < 3; ++turn) {
      reader->beginTurn();
      EXPECT_EQ(reader->pixel({10, 10}), 0U);
      EXPECT_EQ(reader->pointer(), (ScreenPoint{123, 45}));
      EXPECT_FALSE(reader->optionKey());
      reader->watch(turn % 2 == 0 ? [] {} : std::function<void()>());
      QCoreApplication::processEvents();
    }
    EXPECT_EQ(losses.size(), 1U);
    EXPECT_TRUE(eventually(isIdle)) << "the event loop spins on the closed socket";
  }
}

}  // namespace
}  // namespace tavrelkin::test
