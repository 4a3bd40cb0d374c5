// Start and memory of the program and of a bare window, in turns on the same X server, with and without a window
// manager.
//
// A start lasts from the fork until the screen shows the content's colour; a mapped window may still be empty. The
// screen is read every tenth of a millisecond. Memory is read as soon as the process is idle. Only one of the two runs
// at a time, so that they share no libraries.

#include "bench/StartBench.h"

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "bench/support/Figures.h"
#include "bench/support/ProcessUsage.h"
#include "driver/Process.h"
#include "driver/Session.h"
#include "driver/X11Client.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kRuns = 15;

// A position at the left of the content, where neither window has a control. The first window is at the top left corner
// of the screen, or in its middle if there is a window manager.
constexpr test::Area kUnmanaged{10, 200, 1, 1};
constexpr test::Area kManaged{426, 400, 1, 1};
constexpr std::uint32_t kContentColor = 0xCCCCCC;

struct Candidate {
  std::string path;
  std::string name;
  std::vector<double> milliseconds{};
  std::vector<double> mebibytes{};
};

void startOnce(Candidate& candidate, const test::XServer& server, const test::X11Client& client,
               const test::Area& content) {
  const auto isPainted = [&] { return client.read(content)[0] == kContentColor; };
  if (!test::waitUntil([&] { return !isPainted(); })) throw std::runtime_error("The previous window does not close.");
  const test::Home home;
  const auto environment = home.environment(server.display());

  const auto begun = Clock::now();
  const test::Process process({candidate.path}, environment);
  while (!isPainted()) {
    if (Clock::now() - begun > 10s) throw std::runtime_error("No window appears. " + process.errors());
    std::this_thread::sleep_for(100us);
  }
  candidate.milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begun).count());

  const ProcessUsage usage(candidate.name);
  usage.waitUntilIdle();
  candidate.mebibytes.push_back(usage.mebibytes());
}

void printAgainst(const std::string& what, const std::string& wanted, double program, double bare,
                  const std::string& unit) {
  printRow(what, wanted,
           fixed(program / bare, 2) + " times (" + fixed(program, 1) + " against " + fixed(bare, 1) + " " + unit + ")");
}

void benchOn(const test::XServer& server, const std::string& where, const test::Area& content) {
  const test::X11Client client(server.display());
  Candidate program{.path = TAVRELKIN_PROGRAM, .name = "tavrelkin"};
  Candidate bare{.path = BARE_WINDOW, .name = "bare_window"};
  for (int i = 0; i < kRuns; ++i) {
    startOnce(bare, server, client, content);
    startOnce(program, server, client, content);
  }
  printAgainst("start to first painted window, against a bare window, " + where, "at most 1.5 times",
               median(program.milliseconds), median(bare.milliseconds), "ms");
  printAgainst("memory (PSS) while idle, against a bare window, " + where, "at most 1.3 times",
               median(program.mebibytes), median(bare.mebibytes), "MiB");
}

}  // namespace

void benchStart() {
  const test::XServer server;
  benchOn(server, "no window manager", kUnmanaged);
  const test::WindowManager manager(server);
  benchOn(server, "with openbox", kManaged);
}

}  // namespace tavrelkin::bench
