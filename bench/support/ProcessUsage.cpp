#include "bench/support/ProcessUsage.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <unistd.h>

#include "driver/Process.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

// The value in the line "Name: value ..." of a file in /proc; empty if there is no such line.
std::string valueOf(const fs::path& file, const std::string& name) {
  std::ifstream lines(file);
  std::string word;
  while (lines >> word) {
    if (word == name && lines >> word) return word;
    std::getline(lines, word);
  }
  return {};
}

bool isChild(const fs::path& process, const std::string& program) {
  const fs::path status = process / "status";
  return valueOf(status, "Name:") == program && valueOf(status, "PPid:") == std::to_string(getpid());
}

bool isNumber(const std::string& text) {
  return text.find_first_not_of("0123456789") == std::string::npos;
}

pid_t childRunning(const std::string& program) {
  for (const auto& entry : fs::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (isNumber(name) && isChild(entry.path(), program)) return std::stoi(name);
  }
  throw std::runtime_error("No child process runs " + program + ".");
}

}  // namespace

ProcessUsage::ProcessUsage(const std::string& program) : pid_(childRunning(program)) {}

std::chrono::nanoseconds ProcessUsage::cpu() const {
  clockid_t clock = 0;
  std::timespec time{};
  if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &time) != 0)
    throw std::runtime_error("The process has ended.");
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

double ProcessUsage::mebibytes() const {
  const std::string kibibytes = valueOf("/proc/" + std::to_string(pid_) + "/smaps_rollup", "Pss:");
  if (kibibytes.empty()) throw std::runtime_error("The process has ended.");
  return std::stod(kibibytes) / 1024;
}

void ProcessUsage::waitUntilIdle() const {
  const auto isIdle = [this] {
    const auto before = cpu();
    std::this_thread::sleep_for(200ms);
    return cpu() - before < 500us;
  };
  if (!test::waitUntil(isIdle)) throw std::runtime_error("The process does not become idle.");
}

CpuMeter::CpuMeter(const ProcessUsage& process)
    : process_(process), begun_(std::chrono::steady_clock::now()), before_(process.cpu()) {}

double CpuMeter::millisecondsPerSecond() const {
  const std::chrono::duration<double, std::milli> used = process_.cpu() - before_;
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begun_;
  return used.count() / passed.count();
}

}  // namespace tavrelkin::bench
