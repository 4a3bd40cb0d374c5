#pragma once

#include <chrono>
#include <string>

#include <sys/types.h>

namespace tavrelkin::bench {

// The CPU time and memory of a process, from the kernel. Throws if the process has ended.
class ProcessUsage {
 public:
  // Finds the child of this process that runs the program of that name (at most 15 characters). It must exist.
  explicit ProcessUsage(const std::string& program);

  // The CPU time of all its threads since its start, exact to the nanosecond.
  std::chrono::nanoseconds cpu() const;

  // Its proportional share of memory (PSS).
  double mebibytes() const;

  // Waits until the process has been idle for a moment; throws if that takes more than some seconds.
  void waitUntilIdle() const;

 private:
  pid_t pid_;
};

// The CPU time of a process from now on.
class CpuMeter {
 public:
  explicit CpuMeter(const ProcessUsage& process);

  double millisecondsPerSecond() const;
  // In percent of one core.
  double percent() const { return millisecondsPerSecond() / 10; }

 private:
  const ProcessUsage& process_;
  std::chrono::steady_clock::time_point begun_;
  std::chrono::nanoseconds before_;
};

}  // namespace tavrelkin::bench
