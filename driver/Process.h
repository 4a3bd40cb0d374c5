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

// Whether `condition` comes true before the time is over. Asks again and again, since nothing tells when another
// process has got so far; returns as soon as it is true.
template <class Condition>
bool waitUntil(const Condition& condition, std::chrono::milliseconds longest = std::chrono::seconds(8)) {
  const auto end = std::chrono::steady_clock::now() + longest;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

// An empty home folder, removed with the object, and an environment in which nothing of the user's own desktop is left.
class Home {
 public:
  Home();
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;
  ~Home();

  const std::filesystem::path& path() const { return path_; }

  // NAME=value for each variable; `display` is empty for a program that needs none, and so is `bus`, the address of a
  // message bus.
  std::vector<std::string> environment(const std::string& display, const std::string& bus = {}) const;

 private:
  std::filesystem::path path_;
};

// A program that runs beside the test, in no environment but the given one; it is killed with the object, and ends when
// the test ends in any other way.
class Process {
 public:
  // `command` is the program, looked for in PATH, and its arguments; `environment` has the form NAME=value.
  Process(const std::vector<std::string>& command, const std::vector<std::string>& environment,
          const std::string& input = {});
  ~Process() { end(SIGKILL); }

  pid_t id() const { return pid_; }

  // What it has written so far.
  std::string output() const { return contentOf(output_); }
  std::string errors() const { return contentOf(errors_); }
  // The first line of its output, as soon as it is there. Throws where none comes.
  std::string firstLine();

  // A number that the system tells of its state, as "VmHWM", the most memory that it has had so far in KiB; 0 if it has
  // gone.
  int status(const std::string& name) const;

  // The exit status, or 128 and the signal that ended it, as soon as it has ended; nothing if it goes on.
  std::optional<int> waitForExit(std::chrono::milliseconds longest = std::chrono::seconds(8));
  bool isRunning() { return !waitForExit(std::chrono::milliseconds(0)); }
  void end(int signal);

 private:
  // Without a name, in memory.
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
