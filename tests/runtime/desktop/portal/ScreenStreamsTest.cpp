#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/RuntimeTest.h"
#include "fakes/portal/ScreenProducer.h"
#include "runtime/desktop/portal/ScreenStreams.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;
using test::ScreenProducer;

constexpr CastStream::Size kSize{64, 48};
constexpr auto kLong = 5000ms;

ScreenProducer::Picture plain(std::uint32_t rgb) {
  return [rgb](std::int32_t, std::int32_t) { return rgb; };
}

class ScreenStreamsTest : public RuntimeTest {
 protected:
  // Connects to the streams of monitors of kSize that stand side by side.
  void connect(const std::vector<const ScreenProducer*>& monitors) {
    ScreenCast cast{{}, daemon.connect()};
    for (const ScreenProducer* monitor : monitors) {
      const auto index = static_cast<std::int32_t>(cast.streams.size());
      cast.streams.push_back({monitor->node(), ScreenPoint{index * kSize.width, 0}, kSize});
    }
    streams = ScreenStreams::connect(std::move(cast), {.changed = [this] { ++changes; },
                                                       .paused = [this](bool on) { pauses.push_back(on); },
                                                       .lost = [this] { ++losses; }});
    ASSERT_TRUE(streams);
  }

  // Sends an update and waits until it has arrived.
  void deliver(ScreenProducer& monitor, const ScreenProducer::Update& update) {
    const int before = changes;
    ASSERT_TRUE(monitor.send(update));
    ASSERT_TRUE(waitUntil([&] { return changes > before; }));
  }

  std::uint32_t pixel(ScreenPoint at) const { return streams->screen().pixel(at); }
  std::optional<ScreenPoint> pointer() const { return streams->screen().pointer(); }

  test::PipeWireDaemon daemon;
  int changes = 0;
  std::vector<bool> pauses;
  int losses = 0;
  std::unique_ptr<ScreenStreams> streams;
};

TEST_F(ScreenStreamsTest, ReadsEachFormat) {
  for (const std::uint32_t format :
       {SPA_VIDEO_FORMAT_BGRx, SPA_VIDEO_FORMAT_BGRA, SPA_VIDEO_FORMAT_RGBx, SPA_VIDEO_FORMAT_RGBA}) {
    ScreenProducer monitor(daemon, kSize, format);
    connect({&monitor});
    deliver(monitor, {.picture = plain(0x123456)});
    EXPECT_EQ(pixel({63, 47}), 0x123456U) << format;
    streams.reset();
  }
}

TEST_F(ScreenStreamsTest, FollowsFramesAndThePointer) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  EXPECT_FALSE(streams->waitForFrames(0ms));

  deliver(monitor, {.picture = plain(0x112233), .cursorId = 0, .pointer = {9, 9}});
  EXPECT_TRUE(streams->waitForFrames(kLong));
  EXPECT_FALSE(pointer());

  deliver(monitor, {.pointer = {3, 4}});
  EXPECT_EQ(pointer(), (ScreenPoint{3, 4}));
  EXPECT_EQ(pixel({3, 4}), 0x112233U) << "no pixels came with the pointer";

  deliver(monitor, {.cursorId = 0, .pointer = {8, 8}});
  EXPECT_EQ(pointer(), (ScreenPoint{3, 4}));

  monitor.setSize({128, 96});
  deliver(monitor, {.picture = [](std::int32_t x, std::int32_t) { return static_cast<std::uint32_t>(x); },
                    .pointer = {127, 95}});
  EXPECT_EQ(pixel({127, 95}), 127U);
  EXPECT_EQ(pointer(), (ScreenPoint{127, 95}));
  EXPECT_EQ(streams->screen().pointerScale(), 2);
}

TEST_F(ScreenStreamsTest, TellsTheEventLoopOnce) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  ASSERT_TRUE(monitor.send({.picture = plain(1)}));
  ASSERT_TRUE(streams->waitForFrames(kLong));
  ASSERT_TRUE(monitor.send({.pointer = {1, 1}}) && monitor.send({.pointer = {2, 2}}));
  ASSERT_TRUE(test::waitUntil([this] { return pointer() == ScreenPoint{2, 2}; }));
  EXPECT_EQ(changes, 0) << "only from the event loop";
  processEvents();
  EXPECT_EQ(changes, 1);
  deliver(monitor, {.pointer = {3, 3}});
  EXPECT_TRUE(waitUntil([this] { return changes == 2; }));
}

TEST_F(ScreenStreamsTest, ReceivesNothingWhileInactive) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  deliver(monitor, {.picture = plain(1)});
  streams->setActive(false);
  ASSERT_TRUE(monitor.waitForReceiver(false));
  streams->setActive(true);
  EXPECT_FALSE(streams->waitForFrames(0ms)) << "the frame is an old one";
  deliver(monitor, {.picture = plain(2)});
  EXPECT_TRUE(streams->waitForFrames(kLong));
  EXPECT_EQ(pixel({0, 0}), 2U);
  processEvents();
  EXPECT_TRUE(pauses.empty()) << "the pause was asked for";
}

TEST_F(ScreenStreamsTest, KeepsTheLastFrameWhenABufferLies) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  deliver(monitor, {.picture = plain(0x5A5A5A)});
  const ScreenProducer::Update lies[] = {
      {.picture = plain(1), .stride = 0},
      {.picture = plain(1), .stride = -256},
      {.picture = plain(1), .stride = 1 << 30},
      {.picture = plain(1), .offset = 1},
      {.picture = plain(1), .offset = 0xFFFFFFFF, .bytes = 0xFFFFFFFF},
      {.picture = plain(1), .bytes = 100},
      {.picture = plain(1), .bytes = 0},
      {.pointer = {-5, 1 << 30}, .bytes = 64 * 48 * 4},
  };
  for (const auto& lie : lies) {
    deliver(monitor, lie);
    EXPECT_EQ(pixel({0, 0}), 0x5A5A5AU) << &lie - lies;
    EXPECT_EQ(pointer(), (ScreenPoint{0, 0})) << &lie - lies;
  }
}

TEST_F(ScreenStreamsTest, TellsWhenTheDesktopPauses) {
  auto monitor = std::make_unique<ScreenProducer>(daemon, kSize);
  connect({monitor.get()});
  deliver(*monitor, {.picture = plain(1)});
  monitor.reset();
  ASSERT_TRUE(waitUntil([this] { return !pauses.empty(); }));
  EXPECT_EQ(pauses, std::vector{true});
  EXPECT_EQ(losses, 0);
}

TEST_F(ScreenStreamsTest, IsLostOnceWithPipeWire) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  std::thread killer([this] { daemon.kill(); });
  EXPECT_FALSE(streams->waitForFrames(60s)) << "the loss ends the wait";
  killer.join();
  ASSERT_TRUE(waitUntil([this] { return losses > 0; }));
  processEvents();
  EXPECT_EQ(losses, 1);
  streams->setActive(false);
}

TEST_F(ScreenStreamsTest, CanGoWhileFramesArrive) {
  ScreenProducer monitor(daemon, kSize);
  std::atomic<bool> goesOn = true;
  std::thread sender([&] {
    while (goesOn)
      monitor.send({.picture = plain(1)}, 20ms);
  });
  for (int round = 0; round < 5; ++round) {
    connect({&monitor});
    EXPECT_TRUE(streams->waitForFrames(kLong));
    streams.reset();
  }
  ScreenCast cast{{{monitor.node(), {}, {}}}, daemon.connect()};
  streams = ScreenStreams::connect(std::move(cast), {.changed = [this] { streams.reset(); }});
  EXPECT_TRUE(waitUntil([this] { return !streams; })) << "from its own event";
  goesOn = false;
  sender.join();
}

TEST_F(ScreenStreamsTest, WaitsForAPointerThatMovesAndThenRests) {
  ScreenProducer monitor(daemon, kSize);
  connect({&monitor});
  deliver(monitor, {.picture = plain(1)});
  const auto timed = [this](auto quiet, auto longest) {
    const auto start = ScreenStreams::Clock::now();
    streams->waitForPointer(quiet, longest);
    return ScreenStreams::Clock::now() - start;
  };
  EXPECT_GE(timed(1ms, 50ms), 50ms) << "the movement may be under way";

  std::thread mover([&] {
    std::this_thread::sleep_for(100ms);
    monitor.send({.pointer = {5, 5}});
  });
  const auto spent = timed(300ms, 10s);
  EXPECT_GE(spent, 400ms) << "it may go on";
  EXPECT_LT(spent, 10s);
  mover.join();
}

TEST_F(ScreenStreamsTest, RefusesWhatItCannotUse) {
  const auto connects = [this](std::size_t count) {
    ScreenCast cast{std::vector<CastStream>(count), daemon.connect()};
    return ScreenStreams::connect(std::move(cast), {}) != nullptr;
  };
  EXPECT_FALSE(connects(0));
  EXPECT_FALSE(connects(1000));
  EXPECT_TRUE(connects(1));
  setenv("PIPEWIRE_CONFIG_DIR", "/nowhere", 1);
  EXPECT_FALSE(connects(1)) << "without its configuration";
  unsetenv("PIPEWIRE_CONFIG_DIR");
}

}  // namespace
}  // namespace tavrelkin
