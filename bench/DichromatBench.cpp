// The cost of the colour-vision model: the three results of one update, and every colour through one deficiency.
//
// The latter is also a check. Its checksum must be the same for every build on a machine, with and without
// optimisation, and every result must be within the 24 bits of a colour.

#include <cstdint>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/support/Figures.h"
#include "color/zrXYZ.h"

namespace tavrelkin::bench {
namespace {

constexpr std::uint32_t kColors = 0x1000000;
constexpr Double kGamma = 1.8;
constexpr Int32 kDeficiency = 1;
constexpr int kRounds = 9;

zrXYZ taken(Color c) {
  zrXYZ xyz(c);
  xyz.gamma = kGamma;
  xyz.XYZFromRGB(c);
  return xyz;
}

// Works as a window does: a new object, its gamma, the three deficiencies. Two successive colours always differ.
void update(benchmark::State& state) {
  std::uint32_t number = 0;
  for (auto _ : state) {
    const Color c{++number * 2654435761U >> 8};
    const zrXYZ xyz = taken(c);
    for (const Int32 index : {0, 1, 2})
      benchmark::DoNotOptimize(xyz.getDichromatTranformation(index, c));
  }
}

struct Outcome {
  std::uint32_t invalid = 0;
  std::uint64_t checksum = 14695981039346656037U;  // FNV-1a, one colour at a time

  void add(Color seen) {
    if (seen.bits >= kColors) ++invalid;
    checksum = (checksum ^ seen.bits) * 1099511628211U;
  }
};

void everyColor(benchmark::State& state, Outcome& outcome) {
  for (auto _ : state) {
    for (std::uint32_t bits = 0; bits < kColors; ++bits)
      outcome.add(taken(Color{bits}).getDichromatTranformation(kDeficiency, Color{bits}));
  }
}

// Keeps the time of each benchmark in microseconds, or the median if it has several rounds. It is CPU time, since
// nothing here waits.
class Times : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name.empty() || run.aggregate_name == "median")
        times_[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
  }

  double operator[](const std::string& name) const { return times_.at(name); }

 private:
  std::map<std::string, double> times_;
};

std::string hexadecimal(std::uint64_t number) {
  std::ostringstream text;
  text << std::hex << std::setfill('0') << std::setw(16) << number;
  return text.str();
}

void run() {
  Outcome outcome;
  benchmark::RegisterBenchmark("update", update)
      ->Unit(benchmark::kMicrosecond)
      ->MinTime(0.1)
      ->Repetitions(kRounds)
      ->ReportAggregatesOnly();
  benchmark::RegisterBenchmark("every color", [&](benchmark::State& state) { everyColor(state, outcome); })
      ->Unit(benchmark::kMicrosecond)
      ->Iterations(1);
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times);

  printRow("three results of an update of the colour-vision model", "at most 2 µs", fixed(times["update"], 3) + " µs");
  printRow("all 16 777 216 colours through \"Deutanopia\"", {}, fixed(times["every color"] / 1e6, 2) + " s");
  printRow("results among them that are no colour", "0", std::to_string(outcome.invalid));
  printRow("checksum of them all", "the same in every build", hexadecimal(outcome.checksum));
}

}  // namespace
}  // namespace tavrelkin::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  tavrelkin::bench::run();
}
