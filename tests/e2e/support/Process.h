#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace tavrelkin::test {

// A program that runs beside the test, in no environment but the given one; it is killed with the object, and ends when
// the test ends in any other way.
class Process {
 public:
  // `command` is the program, looked for in PATH, and its arguments; `environment` has the form NAME=value.
  Process(const std::vector<std::string>& command, const std::vector<std::string>& environment,
          const std::string& input = {});
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  pid_t id() const { return pid_; }

  // What it has written so far.
  std::string output() const;
  std::string errors() const;

  // The exit status, or 128 and the signal that ended it, as soon as it has ended; nothing if it goes on.
  std::optional<int> waitForExit(std::chrono::milliseconds longest = std::chrono::seconds(8));
  bool isRunning() { return !waitForExit(std::chrono::milliseconds(0)); }

  // Asks it to end, or ends it at once.
  void terminate();
  void kill();

 private:
  // An unnamed file in memory, which the process inherits.
  class MemoryFile {
   public:
    explicit MemoryFile(const std::string& content = {});
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile();

    int descriptor() const { return descriptor_; }
    std::string content() const;

   private:
    int descriptor_;
  };

  void lookForExit();

  MemoryFile input_;
  MemoryFile output_;
  MemoryFile errors_;
  pid_t pid_;
  std::optional<int> exitStatus_;
};

}  // namespace tavrelkin::test
