#pragma once

#include <chrono>
#include <string>

#include <sys/types.h>

namespace tavrelkin::bench {

// What a process takes of the machine, as the kernel keeps the books. Throws when the process has gone.
class ProcessUsage {
 public:
  // The child of this process that runs the program of that name (at most 15 characters). There must be one.
  explicit ProcessUsage(const std::string& program);

  // Processor time of all its threads since its start, exact to the nanosecond.
  std::chrono::nanoseconds cpu() const;

  // Its proportional share of memory (PSS).
  double mebibytes() const;

  // Returns when it has been idle for a moment; throws if that doesn't come within seconds.
  void waitUntilIdle() const;

 private:
  pid_t pid_;
};

// The processor time that a process takes from here on.
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
