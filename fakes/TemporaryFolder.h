#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "runtime/core/files/FolderItem.h"

namespace tavrelkin {

// An empty folder, which is removed with the object, together with its contents.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "tavrelkin-files-XXXXXX";
    if (!mkdtemp(name.data())) throw std::runtime_error("The temporary folder can't be made.");
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::filesystem::path path(const std::string& name) const { return path_ / name; }
  Ref<FolderItem> item(const std::string& name) const { return New<FolderItem>(path(name)); }

  // Makes a file with these bytes.
  Ref<FolderItem> write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return item(name);
  }

  // The bytes of a file. If it can't be read, a text that no test writes to a file.
  std::string read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    if (!file) return "no such file";
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The sorted names of all files in the folder, including hidden files.
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      found.push_back(entry.path().filename());
    std::sort(found.begin(), found.end());
    return found;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tavrelkin
