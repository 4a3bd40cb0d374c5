// A user who does anything, for a long time: soak SECONDS [SEED]. The seed is printed; the same one makes the same
// choices, as far as the windows come and go as they did.
//
// Fails where the program ends, doesn't follow, leaves in disorder, or holds more at the end than at half time, each
// time with one fresh window left.

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>

#include "e2e/soak/RandomUser.h"
#include "e2e/soak/Usage.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// What may be held more at the end than at half time. The toolkit loads fonts, pointers and dialogs once, when they are
// first needed. Memory keeps the size of its fullest hour: up to nine windows of 1.7 MiB each, whose gaps were seen to
// settle within 3 MiB in the second half. Hundreds of windows are opened and thousands of frames drawn in two minutes,
// each with a resource or more: what leaks shows.
constexpr Usage kTolerance{.memory = 8 * 1024, .handles = 3, .resources = 40, .pixmapBytes = 2048};

bool isWithin(const Usage& at, const Usage& before, bool countsMemory) {
  return (!countsMemory || at.memory <= before.memory + kTolerance.memory) &&
         at.handles <= before.handles + kTolerance.handles && at.resources <= before.resources + kTolerance.resources &&
         at.pixmapBytes <= before.pixmapBytes + kTolerance.pixmapBytes;
}

class Soak {
 public:
  Soak(std::chrono::seconds length, std::uint32_t seed)
      : length_(length), session_(in(folder_)), user_(session_, seed) {
    session_.waitForWindow("Color: ");
    session_.clipboard.copy("#3C8CDC");
  }

  void run() {
    const auto start = Clock::now();
    Usage halfWay;
    Usage last;
    for (int part = 1; part <= 4; ++part) {
      actUntil(start + length_ * part / 4);
      last = look();
      if (part == 2) halfWay = last;
    }
    if (!isWithin(last, halfWay, TAVRELKIN_COUNTS_MEMORY)) throw std::runtime_error("It holds more than before.");
    leave();
  }

  std::string errors() const { return session_.program.errors(); }

 private:
  // The program is started in the folder that this process is in.
  static Session::Options in(const Home& folder) {
    std::filesystem::current_path(folder.path());
    return {};
  }

  void actUntil(Clock::time_point end) {
    while (Clock::now() < end) {
      if (const auto status = session_.program.waitForExit(0s))
        throw std::runtime_error("The program has ended with status " + std::to_string(*status) + ".");
      user_.act();
      ++acts_;
    }
  }

  Usage look() {
    if (!user_.tidyUp()) throw std::runtime_error("The program doesn't follow.");
    session_.hand.rest();
    const Usage usage = usageOf(session_.program.id(), session_.client);
    std::cout << acts_ << " acts: " << usage << std::endl;
    return usage;
  }

  void leave() {
    session_.bringToFront(session_.windows.all().front());
    session_.hand.keys("Ctrl+Q");
    const auto status = session_.program.waitForExit(30s);
    if (status != 0) throw std::runtime_error("The program doesn't end in order.");
  }

  std::chrono::seconds length_;
  Home folder_;  // where files are saved, unless the user goes elsewhere
  Session session_;
  RandomUser user_;
  long acts_ = 0;
};

int soak(std::chrono::seconds length, std::uint32_t seed) {
  std::cout << "Seed " << seed << std::endl;
  Soak run(length, seed);
  try {
    run.run();
  } catch (const std::exception& fault) {
    std::cout << "FAIL: " << fault.what() << '\n' << run.errors() << std::endl;
    return EXIT_FAILURE;
  }
  std::cout << run.errors() << "OK" << std::endl;
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace tavrelkin::test

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "soak SECONDS [SEED]" << std::endl;
    return EXIT_FAILURE;
  }
  const auto seed = argc > 2 ? static_cast<std::uint32_t>(std::stoul(argv[2])) : std::random_device{}();
  return tavrelkin::test::soak(std::chrono::seconds(std::stol(argv[1])), seed);
}
