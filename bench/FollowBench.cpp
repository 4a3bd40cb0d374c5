// The program while idle and while following, driven as a user would on an X server with a window manager. The pointer
// rests or moves over another program's window, which is away from all tool windows.
//
// Previews: that window changes its colour 240 times a second; the figure is how often a pixel of the preview changes
// on the screen, which is read about every fifth of a millisecond. Latency: the pointer jumps between pixels that all
// differ, until the cell inside the marker shows the new pixel. CPU time comes from the kernel while nobody reads the
// screen.

#include "bench/FollowBench.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/support/Circles.h"
#include "bench/support/Figures.h"
#include "bench/support/ProcessUsage.h"
#include "driver/Process.h"
#include "driver/ToolWindow.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
using namespace tavrelkin::test;
using Clock = std::chrono::steady_clock;

// Leaves room for eight tool windows above the other program's window.
constexpr auto kScreen = "1920x1080x24";
constexpr Area kForeign{700, 700, 500, 320};
constexpr ScreenPoint kMiddle{950, 860};
constexpr ScreenPoint kAside{400, 100};    // in the preview, away from the marker and the frame
constexpr ScreenPoint kInMarker{206, 98};  // in the centre cell at step 1

Area pixelAt(ScreenPoint at) {
  return {static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y), 1, 1};
}

// A session with the program, and the operations in it.
class FollowBench {
 public:
  FollowBench();

  void benchOneWindow();
  void benchZoomSteps();
  void benchManyWindows();

 private:
  void benchIdle();
  void benchMoves();
  void benchStill();
  void benchCircles();
  void benchLatency();
  void benchWindows(std::size_t count);

  void holdAt(ScreenPoint at);
  void openAnother();
  void put(const ToolWindow& window, std::size_t number);
  void moveInCircles();
  double millisecondsTo(ScreenPoint at, const ForeignWindow& foreign);
  std::vector<double> previewsPerSecond();

  Session session_{{.server = {.screen = kScreen, .arguments = {}}, .environment = {}}};
  std::vector<ToolWindow> windows_{ToolWindow(session_)};
  ProcessUsage program_{"tavrelkin"};
  ProcessUsage server_{"Xvfb"};
};

FollowBench::FollowBench() {
  put(windows_[0], 0);
  session_.hand.moveTo(kMiddle);
}

void FollowBench::benchOneWindow() {
  benchIdle();
  benchMoves();
  windows_[0].keys("Ctrl+F");
  benchStill();
  benchCircles();
  benchLatency();
}

void FollowBench::benchZoomSteps() {
  windows_[0].unfold();
  windows_[0].keys("Ctrl+F");
  for (const int step : {1, 2, 3}) {
    windows_[0].zoomIn(std::max(step - 1, 1), step);
    holdAt(kMiddle);
    printRow("following a changing screen at zoom step " + std::to_string(step) + ": previews a second", "at least 58",
             fixed(previewsPerSecond()[0], 1));
    windows_[0].keys("Ctrl+L");
  }
}

// Locks the preview to a position and moves the pointer away: this server draws the pointer into the screen, and leaves
// traces of it where a window changes below it. The program handles the paste after the lock.
void FollowBench::holdAt(ScreenPoint at) {
  session_.hand.moveTo(at);
  windows_[0].keys("Ctrl+L");
  if (!windows_[0].paste(0x111111) || !windows_[0].paste(0x222222))
    throw std::runtime_error("The program does not respond to keys.");
  session_.hand.moveTo({600, 650});
}

void FollowBench::benchManyWindows() {
  windows_[0].keys("Ctrl+F");
  for (const std::size_t count : {2, 4, 8})
    benchWindows(count);
}

// Puts four windows in each row.
void FollowBench::put(const ToolWindow& window, std::size_t number) {
  const auto column = static_cast<std::int16_t>(number % 4);
  const auto row = static_cast<std::int16_t>(number / 4);
  const auto x = static_cast<std::int16_t>(10 + column * 470);
  const auto y = static_cast<std::int16_t>(10 + row * 340);
  session_.windows.moveTo(window.window(), x, y);
  const auto isThere = [&] {
    const Area area = session_.windows.area(window.window());
    return std::abs(area.x - x) < 60 && std::abs(area.y - y) < 60;
  };
  if (!waitUntil(isThere)) throw std::runtime_error("The window can't be moved.");
}

void FollowBench::benchIdle() {
  program_.waitUntilIdle();
  const CpuMeter program(program_);
  std::this_thread::sleep_for(10s);
  printRow("idle, not following: CPU", "at most 1 ms a second",
           fixed(program.millisecondsPerSecond(), 2) + " ms a second");
}

// Measures the server's cost of the moves alone.
void FollowBench::benchMoves() {
  const ForeignWindow foreign(session_.client, kForeign);
  const CpuMeter server(server_);
  moveInCircles();
  printRow("pointer in circles, not following: CPU of the X server", {}, fixed(server.percent(), 1) + " %");
}

void FollowBench::benchStill() {
  const ForeignWindow foreign(session_.client, kForeign);
  const CpuMeter program(program_);
  const CpuMeter server(server_);
  std::this_thread::sleep_for(5s);
  printRow("following, nothing moves or changes: CPU of the program (of the X server)", "at most 4 %",
           fixed(program.percent(), 1) + " % (" + fixed(server.percent(), 1) + " %)");
}

void FollowBench::benchCircles() {
  const ForeignWindow foreign(session_.client, kForeign);
  const CpuMeter program(program_);
  const CpuMeter server(server_);
  moveInCircles();
  printRow("following, pointer in circles at 60 moves a second, step 1: CPU of the program and of the X server",
           "at most 6 % and 3 %", fixed(program.percent(), 1) + " % and " + fixed(server.percent(), 1) + " %");
}

void FollowBench::moveInCircles() {
  bench::moveInCircles(session_.hand, kMiddle, 90);
}

void FollowBench::benchLatency() {
  constexpr int kMoves = 200;
  const ForeignWindow foreign(session_.client, kForeign);
  std::mt19937 random(1);
  std::uniform_int_distribution<int> offset(-90, 90);
  std::uniform_int_distribution<int> pause(16'000, 50'000);
  std::vector<double> latencies;
  for (int i = 0; i < kMoves; ++i) {
    const auto next = Clock::now() + std::chrono::microseconds(pause(random));
    latencies.push_back(millisecondsTo({kMiddle.x + offset(random), kMiddle.y + offset(random)}, foreign));
    std::this_thread::sleep_until(next);
  }
  printRow("pointer moved, until the preview shows the new centre: median, p95", "3 ms, 8 ms",
           fixed(median(latencies), 1) + " ms, " + fixed(quantile(latencies, 0.95), 1) + " ms");
}

// The time from the request to move the pointer.
double FollowBench::millisecondsTo(ScreenPoint at, const ForeignWindow& foreign) {
  const Area cell = pixelAt(windows_[0].onPreview(kInMarker.x, kInMarker.y));
  const std::uint32_t expected = foreign.shown(at);
  const auto begun = Clock::now();
  session_.hand.moveTo(at);
  while (session_.client.read(cell)[0] != expected) {
    if (Clock::now() - begun > 2s) throw std::runtime_error("The preview does not follow.");
    std::this_thread::sleep_for(50us);
  }
  return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

void FollowBench::benchWindows(std::size_t count) {
  while (windows_.size() < count)
    openAnother();
  session_.hand.moveTo(kMiddle);
  const CpuMeter program(program_);
  const auto previews = previewsPerSecond();
  const double cpu = program.percent();
  std::string each;
  for (const double perSecond : previews)
    each += (each.empty() ? "" : ", ") + fixed(perSecond, 0);
  printRow(std::to_string(count) + " windows following a changing screen: previews a second of each, CPU",
           "none starves", each + "; " + fixed(cpu, 1) + " %");
}

// Opens another window with the keys, and makes it follow.
void FollowBench::openAnother() {
  windows_.back().keys("Ctrl+N");
  std::vector<xcb_window_t> open;
  const auto isOpen = [&] {
    open = session_.windows.titled("Color: ");
    return open.size() > windows_.size();
  };
  if (!waitUntil(isOpen)) throw std::runtime_error("The program opens no other window.");
  ToolWindow opened(session_, open.back());
  put(opened, windows_.size());
  opened.keys("Ctrl+F");
  windows_.push_back(opened);
}

// The rate of each window while the screen under the pointer changes.
std::vector<double> FollowBench::previewsPerSecond() {
  constexpr auto kSpan = 3s;
  constexpr auto kBetweenChanges = std::chrono::nanoseconds(1s) / 240;
  const xcb_window_t changing = session_.client.open(kForeign);
  std::vector<Area> places;
  for (const ToolWindow& window : windows_)
    places.push_back(pixelAt(window.onPreview(kAside.x, kAside.y)));

  std::vector<std::uint32_t> last(windows_.size());
  std::vector<double> seen(windows_.size());
  const auto begun = Clock::now();
  std::uint32_t changes = 0;
  for (auto now = begun; now < begun + kSpan; now = Clock::now()) {
    if (now >= begun + changes * kBetweenChanges) session_.client.fill(changing, ++changes * 2654435761U >> 8);
    for (std::size_t i = 0; i < places.size(); ++i) {
      const std::uint32_t shown = session_.client.read(places[i])[0];
      if (std::exchange(last[i], shown) != shown) seen[i] += 1.0 / std::chrono::seconds(kSpan).count();
    }
    std::this_thread::sleep_for(200us);
  }
  session_.client.close(changing);
  return seen;
}

}  // namespace

void benchFollowing() {
  FollowBench().benchOneWindow();
  FollowBench().benchZoomSteps();
  FollowBench().benchManyWindows();
}

}  // namespace tavrelkin::bench
