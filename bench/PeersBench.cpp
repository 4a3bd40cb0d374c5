// The program beside other programs of its kind, if they are installed, and beside a bare window. All are measured from
// outside, in turns on the same display. Prints a table of its own.
//
// Start: until the screen shows the window's final look. Following: a program follows if some pixel of its window takes
// the colour under the pointer. To find that pixel, the pointer rests on one colour and then on another. Latency: until
// that pixel has the new colour.

#include <exception>
#include <iostream>
#include <random>
#include <thread>

#include <sys/prctl.h>

#include "bench/Peer.h"
#include "bench/support/Circles.h"
#include "bench/support/Figures.h"
#include "driver/ToolWindow.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using test::Area;

constexpr int kStarts = 7;
constexpr int kMoves = 60;
constexpr std::uint32_t kColors[] = {0x2F6CA8, 0xB8552D};
// The patches are below all windows, which are in the middle of the screen.
constexpr Area kPatches[] = {{140, 800, 440, 190}, {700, 800, 440, 190}};
constexpr ScreenPoint kPoints[] = {{360, 895}, {920, 895}};

struct Figures {
  std::string start = "-", memory = "-", idle = "-", following = "-", latency = "-";
};

void measureStart(PeerDesktop& desktop, const Program& program, Figures& figures) {
  Area area{};
  std::vector<std::uint32_t> atRest;
  {
    const RunningProgram running(desktop, program);
    area = running.area();
    atRest = running.shown();
    figures.memory = fixed(running.usage().mebibytes(), 1) + " MiB";
    const CpuMeter cpu(running.usage());
    std::this_thread::sleep_for(5s);
    figures.idle = fixed(cpu.millisecondsPerSecond(), 1) + " ms/s";
  }
  std::vector<double> milliseconds;
  for (int i = 0; i < kStarts; ++i)
    milliseconds.push_back(millisecondsToStart(desktop, program, area, atRest));
  figures.start = fixed(median(milliseconds), 0) + " ms";
}

// The pixel of the window that takes the colour under the pointer; nothing if there is none.
std::optional<Area> followingPixel(PeerDesktop& desktop, const RunningProgram& running) {
  std::vector<std::uint32_t> shown[2];
  for (const int i : {0, 1}) {
    desktop.hand.moveTo(kPoints[i]);
    std::this_thread::sleep_for(500ms);
    shown[i] = running.shown();
  }
  for (std::size_t i = 0; i < shown[0].size(); ++i) {
    if (shown[0][i] != desktop.client.shown(kColors[0]) || shown[1][i] != desktop.client.shown(kColors[1])) continue;
    const Area& area = running.area();
    const auto x = static_cast<std::int16_t>(area.x + static_cast<int>(i % area.width));
    const auto y = static_cast<std::int16_t>(area.y + static_cast<int>(i / area.width));
    return Area{x, y, 1, 1};
  }
  return {};
}

double medianLatency(PeerDesktop& desktop, const Area& pixel) {
  std::mt19937 random(1);
  std::uniform_int_distribution<int> pause(16'000, 70'000);
  std::vector<double> milliseconds;
  for (int i = 0; i < kMoves; ++i) {
    const auto next = Clock::now() + std::chrono::microseconds(pause(random)) + 50ms;
    const auto begun = Clock::now();
    desktop.hand.moveTo(kPoints[i % 2]);
    while (desktop.client.read(pixel)[0] != desktop.client.shown(kColors[i % 2])) {
      if (Clock::now() - begun > 2s) throw std::runtime_error("A program has stopped following.");
      std::this_thread::sleep_for(50us);
    }
    milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begun).count());
    std::this_thread::sleep_until(next);
  }
  return median(milliseconds);
}

// CPU in percent of a core while the pointer moves 60 times a second over pixels that all differ.
double percentInCircles(PeerDesktop& desktop, const ProcessUsage& usage) {
  const test::ForeignWindow foreign(desktop.client, kPatches[0]);
  const CpuMeter cpu(usage);
  moveInCircles(desktop.hand, kPoints[0], 80);
  return cpu.percent();
}

void measureFollowing(PeerDesktop& desktop, const Program& program, Figures& figures) {
  RunningProgram running(desktop, program);
  running.follow();
  xcb_window_t patches[2];
  for (const int i : {0, 1}) {
    patches[i] = desktop.client.open(kPatches[i]);
    desktop.client.fill(patches[i], kColors[i]);
  }
  if (const auto pixel = followingPixel(desktop, running)) {
    figures.latency = fixed(medianLatency(desktop, *pixel), 1) + " ms";
    figures.following = fixed(percentInCircles(desktop, running.usage()), 1) + " %";
  }
  for (const xcb_window_t patch : patches)
    desktop.client.close(patch);
}

void print(const std::vector<Program>& programs, const std::vector<Figures>& figures) {
  const auto row = [&](const std::string& title, const auto& cell) {
    std::cout << "| " << title << " |";
    for (std::size_t i = 0; i < programs.size(); ++i)
      std::cout << ' ' << cell(i) << " |";
    std::cout << std::endl;
  };
  row("What", [&](std::size_t i) { return programs[i].name; });
  row("---", [](std::size_t) { return "---"; });
  row("start", [&](std::size_t i) { return figures[i].start; });
  row("memory (PSS) at rest", [&](std::size_t i) { return figures[i].memory; });
  row("CPU at rest, the pointer elsewhere", [&](std::size_t i) { return figures[i].idle; });
  row("CPU following, 60 moves a second", [&](std::size_t i) { return figures[i].following; });
  row("pointer moved, until it shows the colour: median", [&](std::size_t i) { return figures[i].latency; });
}

void benchPeers() {
  std::vector<Program> programs{
      {"Tavrelkin", TAVRELKIN_PROGRAM, "Ctrl+F"}, {"bare Qt window", BARE_WINDOW}, {"gpick", "gpick"}, {"kmag", "kmag"},
      {"kcolorchooser", "kcolorchooser"},         {"gcolor3", "gcolor3"}};
  std::erase_if(programs, [](const Program& program) { return !program.isInstalled(); });
  PeerDesktop desktop;
  std::vector<Figures> figures(programs.size());
  for (std::size_t i = 0; i < programs.size(); ++i) {
    desktop.hand.moveTo({5, 5});
    measureStart(desktop, programs[i], figures[i]);
    measureFollowing(desktop, programs[i], figures[i]);
  }
  print(programs, figures);
}

}  // namespace

}  // namespace tavrelkin::bench

int main() {
  prctl(PR_SET_TIMERSLACK, 1);  // the pauses between two reads of the screen are shorter than the default slack
  try {
    tavrelkin::bench::benchPeers();
  } catch (const std::exception& fault) {
    std::cerr << "peers_bench: " << fault.what() << std::endl;
    return 1;
  }
}
