#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace tavrelkin::bench {

// Keeps the median of each benchmark, in milliseconds, and prints nothing.
class Medians : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
  }

  double operator[](const std::string& name) const { return medians_.at(name); }

 private:
  std::map<std::string, double> medians_;
};

// Adds a benchmark of several rounds; Medians keeps their median.
template <class Body>
benchmark::internal::Benchmark* add(const std::string& name, Body&& body) {
  return benchmark::RegisterBenchmark(name.c_str(), std::forward<Body>(body))
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(9)
      ->ReportAggregatesOnly();
}

}  // namespace tavrelkin::bench
