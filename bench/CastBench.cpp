// The program on a desktop that casts its screen. A played desktop sends the frames, so the figures contain only the
// program's own share, without a compositor's. The program's windows are on an X server, where the preview is observed.
//
// Latency: from the time at which the desktop has handed a place of the pointer, or a frame of 1280 by 1024, to
// PipeWire, until the cell inside the marker shows the new colour. Previews: the desktop sends 60 frames a second; the
// figure is how often a pixel of the preview changes.

#include "bench/CastBench.h"

#include <chrono>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/support/Figures.h"
#include "bench/support/ProcessUsage.h"
#include "driver/PlayedSession.h"
#include "driver/ToolWindow.h"
#include "fakes/portal/PlayedScreen.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
using namespace tavrelkin::test;
using Clock = std::chrono::steady_clock;

class CastBench {
 public:
  CastBench();

  void benchStill();
  void benchMoves();
  void benchLatencyOfPointer();
  void benchLatencyOfFrames();
  void benchPreviews();

 private:
  std::uint32_t shown();
  double millisecondsTo(const std::string& line, std::uint32_t color);
  void printLatency(const std::string& what, const std::vector<double>& latencies);
  int random(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }

  PlayedSession session_;
  ToolWindow tool_{session_};
  ProcessUsage program_{"tavrelkin"};
  std::mt19937 random_{1};
  ScreenPoint at_{640, 512};
  std::uint32_t frame_ = 0;
};

CastBench::CastBench() {
  session_.cast({"monitors 1280x1024+0+0", "pointer 640 512"});
  tool_.keys("Ctrl+F");
  if (!waitUntil([this] { return shown() == playedPixel(0, 0, at_.x, at_.y); }))
    throw std::runtime_error("The preview does not show the screen.");
}

// The colour of the cell inside the marker.
std::uint32_t CastBench::shown() {
  const ScreenPoint cell = tool_.onPreview(206, 98);
  return session_.client.read({static_cast<std::int16_t>(cell.x), static_cast<std::int16_t>(cell.y), 1, 1})[0];
}

void CastBench::benchStill() {
  program_.waitUntilIdle();
  const CpuMeter program(program_);
  std::this_thread::sleep_for(5s);
  printRow("following a cast screen, nothing moves or changes: CPU", "at most 0.2 %",
           fixed(program.percent(), 2) + " %");
}

void CastBench::benchMoves() {
  constexpr int kRate = 60;
  constexpr int kSeconds = 5;
  const CpuMeter program(program_);
  const auto begun = Clock::now();
  for (int i = 0; i < kRate * kSeconds; ++i) {
    std::this_thread::sleep_until(begun + i * std::chrono::nanoseconds(1s) / kRate);
    session_.cast({"pointer " + std::to_string(random(100, 1180)) + " " + std::to_string(random(100, 924))});
  }
  printRow("following a cast screen, pointer moving at 60 moves a second: CPU", "at most 6 %",
           fixed(program.percent(), 1) + " %");
}

void CastBench::benchLatencyOfPointer() {
  std::vector<double> latencies;
  for (int i = 0; i < 200; ++i) {
    at_ = {random(100, 1180), random(100, 924)};
    latencies.push_back(millisecondsTo("pointer " + std::to_string(at_.x) + " " + std::to_string(at_.y),
                                       playedPixel(frame_, 0, at_.x, at_.y)));
    std::this_thread::sleep_for(std::chrono::milliseconds(random(16, 50)));
  }
  printLatency("place of the pointer", latencies);
}

void CastBench::benchLatencyOfFrames() {
  std::vector<double> latencies;
  for (int i = 0; i < 200; ++i) {
    ++frame_;
    latencies.push_back(millisecondsTo("frame " + std::to_string(frame_), playedPixel(frame_, 0, at_.x, at_.y)));
    std::this_thread::sleep_for(std::chrono::milliseconds(random(16, 50)));
  }
  printLatency("frame", latencies);
}

double CastBench::millisecondsTo(const std::string& line, std::uint32_t color) {
  const auto begun = Clock::now();
  session_.tell(line);
  while (shown() != color) {
    if (Clock::now() - begun > 2s) throw std::runtime_error("The preview does not follow.");
    std::this_thread::sleep_for(50us);
  }
  const auto painted = Clock::now();
  return std::chrono::duration<double, std::milli>(painted - session_.waitForAnswer()).count();
}

void CastBench::printLatency(const std::string& what, const std::vector<double>& latencies) {
  printRow("a cast screen's " + what + " handed over, until the preview shows it: median, p95", "1 ms, 3 ms",
           fixed(median(latencies), 1) + " ms, " + fixed(quantile(latencies, 0.95), 1) + " ms");
}

void CastBench::benchPreviews() {
  constexpr int kRate = 60;
  constexpr int kSeconds = 3;
  int previews = 0;
  std::uint32_t last = shown();
  const CpuMeter program(program_);
  const auto begun = Clock::now();
  for (int i = 0; i < kRate * kSeconds; ++i) {
    session_.tell("frame " + std::to_string(++frame_));
    const auto next = begun + (i + 1) * std::chrono::nanoseconds(1s) / kRate;
    for (; Clock::now() < next; std::this_thread::sleep_for(200us)) {
      const std::uint32_t now = shown();
      if (std::exchange(last, now) != now) ++previews;
    }
  }
  printRow("following a cast screen of 60 frames a second: previews a second, CPU", "60",
           fixed(static_cast<double>(previews) / kSeconds, 1) + "; " + fixed(program.percent(), 1) + " %");
}

}  // namespace

void benchCasting() {
  CastBench bench;
  bench.benchStill();
  bench.benchMoves();
  bench.benchLatencyOfPointer();
  bench.benchLatencyOfFrames();
  bench.benchPreviews();
}

}  // namespace tavrelkin::bench
