#pragma once

#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace tavrelkin::test {

// Whether `condition` becomes true in time. Polls it, since another process does not report its progress. Returns as
// soon as it is true.
template <class Condition>
bool waitUntil(const Condition& condition, std::chrono::milliseconds longest = std::chrono::seconds(8)) {
  const auto end = std::chrono::steady_clock::now() + longest;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

// An empty home folder, removed with the object, and an environment without anything of the user's own desktop.
class Home {
 public:
  Home();
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;
  ~Home();

  const std::filesystem::path& path() const { return path_; }

  // NAME=value for each variable. `display` is empty for a program that needs no display. `bus` is the address of a
  // message bus, or empty for none.
  std::vector<std::string> environment(const std::string& display, const std::string& bus = {}) const;

 private:
  std::filesystem::path path_;
};

// A program that runs beside the test, with only the given environment. It is killed with the object, and also ends
// when the test's process ends.
class Process {
 public:
  // `command` is the program, which is searched in PATH, and its arguments. `environment` has the form NAME=value.
  Process(const std::vector<std::string>& command, const std::vector<std::string>& environment,
          const std::string& input = {});
  ~Process() { end(SIGKILL); }

  pid_t id() const { return pid_; }

  // What the program has written so far.
  std::string output() const { return contentOf(output_); }
  std::string errors() const { return contentOf(errors_); }
  // Waits for the first line of the program's output. Throws if none comes.
  std::string firstLine();

  // A number of the system's status of the process, such as "VmHWM", the peak of its memory in KiB; 0 if the process
  // has ended.
  int status(const std::string& name) const;

  // Waits for the end of the process. Returns the exit status, or 128 plus the number of the signal that ended it;
  // nothing if the process is still running after `longest`.
  std::optional<int> waitForExit(std::chrono::milliseconds longest = std::chrono::seconds(8));
  bool isRunning() { return !waitForExit(std::chrono::milliseconds(0)); }
  void end(int signal);

 private:
  // A file in memory, without a name.
  using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
  static File newFile(const std::string& content = {});
  static std::string contentOf(const File& file);

  pid_t start(std::vector<std::string> command, std::vector<std::string> environment) const;

  File input_;
  File output_ = newFile();
  File errors_ = newFile();
  pid_t pid_;
  std::optional<int> exitStatus_;
};

}  // namespace tavrelkin::test
