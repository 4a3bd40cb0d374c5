// Runs every file of a folder through a target, without a fuzzer.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "fuzz/support/Target.h"

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder))
    files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

// The vector is exactly as long as the file, so that the sanitizers notice each access beyond its end.
std::vector<std::uint8_t> bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  file.exceptions(std::ios::badbit);
  std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
  bytes.shrink_to_fit();
  return bytes;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "Wanted: the folder of the files to run.\n";
    return 2;
  }
  const std::vector<fs::path> files = filesIn(arguments[1]);
  for (const fs::path& path : files) {
    // Printed and flushed before the run, since the run may end the program.
    std::cout << path.filename().string() << std::endl;
    const std::vector<std::uint8_t> bytes = bytesOf(path);
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  return files.empty() ? 1 : 0;
}
