#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tavrelkin::test {

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

}  // namespace tavrelkin::test
