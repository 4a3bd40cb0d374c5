// Writing and reading a swatch file with a table of colours: one of the usual size, and the largest of the format. The
// files are in the folder for temporary files. The figures are medians over many rounds, with the 95th percentile,
// since a disk is slow at times.

#include <chrono>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "bench/support/Figures.h"
#include "driver/Process.h"
#include "runtime/core/files/FolderItem.h"
#include "tables/zrClut.h"

namespace tavrelkin::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 200;

bool printMedian(const std::string& what, const std::string& wanted, const std::function<bool()>& body) {
  std::vector<double> milliseconds;
  for (int i = 0; i < kRounds; ++i) {
    const auto begun = Clock::now();
    if (!body()) return false;
    milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begun).count());
  }
  printRow(what, wanted,
           fixed(median(milliseconds), 3) + " ms (95 %: " + fixed(quantile(milliseconds, 0.95), 3) + " ms)");
  return true;
}

// A table that is written as a file with this number of colours.
Ref<zrClut> tableOf(Int32 colors) {
  auto table = New<zrClut>();
  table->Count = colors - 1;
  table->aColors.resize(static_cast<std::size_t>(colors));
  while (table->Index < table->Count)
    table->Add(Color{static_cast<std::uint32_t>(table->Index + 1) * 2654435761U >> 8});
  return table;
}

bool benchSwatch(const Ref<FolderItem>& file, Int32 colors, const std::string& wanted) {
  const Ref<zrClut> table = tableOf(colors);
  const std::string size = " a swatch of " + std::to_string(colors) + " colours";
  return printMedian("write" + size, wanted, [&] { return table->writeSwatch(file); }) &&
         printMedian("read" + size, wanted, [&] { return New<zrClut>()->ReadSwatch(file); });
}

int run() {
  const test::Home home;
  const auto file = New<FolderItem>(home.path() / "bench.aco");
  if (benchSwatch(file, 256, "at most 0.2 ms") && benchSwatch(file, 32767, "at most 10 ms")) return 0;
  std::cerr << "swatch_bench: the file can't be used" << std::endl;
  return 1;
}

}  // namespace
}  // namespace tavrelkin::bench

int main() {
  return tavrelkin::bench::run();
}
