#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "e2e/Eventually.h"
#include "runtime/desktop/native/NativeDesktop.h"

namespace tavrelkin::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(NativeDesktop, RingsAlarmsOnceAndTellsTheLengthOfAFrame) {
  const auto desktop = makeNativeDesktop();
  EXPECT_GE(desktop->frameInterval(), 1ms);
  EXPECT_LE(desktop->frameInterval(), 1s);

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

}  // namespace
}  // namespace tavrelkin::test
