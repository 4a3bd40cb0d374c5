// A random user for a long time: soak SECONDS [SEED]. Prints the seed. The same seed makes the same choices, as long as
// the windows open and close in the same way.
//
// Fails if the program ends, does not obey or does not exit cleanly, or if it holds more at the end than at half time.
// Both times only one new window is left.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>

#include <xcb/res.h>

#include "soak/RandomUser.h"

namespace tavrelkin::test {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// The program's use of the machine's resources.
struct Usage {
  int memory = 0;     // its own memory in KiB; pages mapped from files are shared and come and go as the system decides
  int handles = 0;    // open files
  int resources = 0;  // all kinds of resources on the X server, including those of the few other programs there
};

// How much more the program may hold at the end than at half time. The toolkit loads fonts, pointers and dialogs once,
// at their first use. Memory keeps its peak size: up to nine windows with 1.7 MiB each, whose gaps were measured to
// settle within 3 MiB in the second half. In two minutes hundreds of windows open and thousands of frames are drawn,
// each with at least one resource, so a leak shows.
constexpr Usage kTolerance{.memory = 8 * 1024, .handles = 3, .resources = 40};

bool isWithin(const Usage& at, const Usage& before) {
  return (!TAVRELKIN_COUNTS_MEMORY || at.memory <= before.memory + kTolerance.memory) &&
         at.handles <= before.handles + kTolerance.handles && at.resources <= before.resources + kTolerance.resources;
}

int resourcesOn(xcb_connection_t* c) {
  const auto clients = await(c, xcb_res_query_clients(c), xcb_res_query_clients_reply);
  int result = 0;
  for (auto client = xcb_res_query_clients_clients_iterator(clients.get()); client.rem > 0;
       xcb_res_client_next(&client)) {
    const auto cookie = xcb_res_query_client_resources(c, client.data->resource_base);
    const auto counts = await(c, cookie, xcb_res_query_client_resources_reply);
    if (!counts) continue;
    for (auto type = xcb_res_query_client_resources_types_iterator(counts.get()); type.rem > 0;
         xcb_res_type_next(&type))
      result += static_cast<int>(type.data->count);
  }
  return result;
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
    if (!isWithin(last, halfWay)) throw std::runtime_error("The program holds more resources than at half time.");
    session_.bringToFront(session_.windows.all().front());
    session_.hand.keys("Ctrl+Q");
    const auto status = session_.program.waitForExit(30s);
    if (!status) throw std::runtime_error("The program doesn't exit.");
    if (*status != 0) throw std::runtime_error("The program has exited with status " + std::to_string(*status) + ".");
  }

  std::string errors() const { return session_.program.errors(); }

 private:
  // The program starts in the folder of this process. It gives freed pictures back to the system at once: the C
  // library otherwise keeps some, and a leak would not show beside them.
  static Session::Options in(const Home& folder) {
    std::filesystem::current_path(folder.path());
    return {.environment = {"MALLOC_MMAP_THRESHOLD_=131072", "MALLOC_TRIM_THRESHOLD_=131072"}};
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
    if (!user_.tidyUp()) throw std::runtime_error("The program doesn't obey.");
    session_.hand.rest();
    const Process& program = session_.program;
    const std::filesystem::directory_iterator files("/proc/" + std::to_string(program.id()) + "/fd");
    const Usage usage{.memory = program.status("RssAnon"),
                      .handles = static_cast<int>(std::distance(begin(files), end(files))),
                      .resources = resourcesOn(session_.client.connection())};
    std::cout << acts_ << " acts: " << usage.memory << " KiB of memory, " << usage.handles << " files and "
              << usage.resources << " resources on the server" << std::endl;
    return usage;
  }

  std::chrono::seconds length_;
  Home folder_;  // the folder where files are saved, unless the user chooses another
  Session session_;
  RandomUser user_;
  long acts_ = 0;
};

}  // namespace
}  // namespace tavrelkin::test

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto seed =
      arguments.size() > 1 ? static_cast<std::uint32_t>(std::stoul(arguments[1])) : std::random_device{}();
  std::cout << "Seed " << seed << std::endl;
  tavrelkin::test::Soak soak(std::chrono::seconds(std::stol(arguments.at(0))), seed);
  std::string result = "OK";
  try {
    soak.run();
  } catch (const std::exception& fault) {
    result = std::string("FAIL: ") + fault.what();
  }
  std::cout << soak.errors() << result << std::endl;
  return result == "OK" ? EXIT_SUCCESS : EXIT_FAILURE;
}
