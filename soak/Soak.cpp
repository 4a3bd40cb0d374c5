// A user who does anything, for a long time: soak SECONDS [SEED]. The seed is printed; the same one makes the same
// choices, as far as the windows come and go as they did.
//
// Fails where the program ends, doesn't follow, leaves in disorder, or holds more at the end than at half time, each
// time with one fresh window left.

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

// What the program holds of the machine.
struct Usage {
  int memory = 0;     // KiB of its own; what is mapped from files is shared, and comes and goes as the system likes
  int handles = 0;    // open files
  int resources = 0;  // on the X server, of all kinds, with those of the few other programs there
};

// What may be held more at the end than at half time. The toolkit loads fonts, pointers and dialogs once, when they are
// first needed. Memory keeps the size of its fullest hour: up to nine windows of 1.7 MiB each, whose gaps were seen to
// settle within 3 MiB in the second half. Hundreds of windows are opened and thousands of frames drawn in two minutes,
// each with a resource or more: what leaks shows.
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
    if (!isWithin(last, halfWay)) throw std::runtime_error("It holds more than before.");
    session_.bringToFront(session_.windows.all().front());
    session_.hand.keys("Ctrl+Q");
    if (session_.program.waitForExit(30s) != 0) throw std::runtime_error("The program doesn't end in order.");
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
  Home folder_;  // where files are saved, unless the user goes elsewhere
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
