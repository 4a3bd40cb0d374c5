#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "e2e/Eventually.h"
#include "runtime/desktop/native/NativeDesktop.h"

namespace tavrelkin::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(NativeDesktop, ReadsTheScreenUnlessTheSessionIsWayland) {
  const auto x11 = makeNativeDesktop();
  EXPECT_TRUE(x11->canReadScreen());
  EXPECT_EQ(x11->whyNoScreen(), "");
  EXPECT_GE(x11->frameInterval(), 1ms);

  qputenv("WAYLAND_DISPLAY", "wayland-0");
  const auto wayland = makeNativeDesktop();
  qunsetenv("WAYLAND_DISPLAY");
  EXPECT_FALSE(wayland->canReadScreen());
  EXPECT_NE(wayland->whyNoScreen().find("Wayland"), std::string::npos);
  EXPECT_NE(wayland->pixel({7, 0}), wayland->pixel({8, 0})) << "not to be taken for a picture of the screen";
}

TEST(NativeDesktop, RingsAlarmsOnce) {
  const auto desktop = makeNativeDesktop();
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
