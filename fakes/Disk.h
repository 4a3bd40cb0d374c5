#pragma once

#include <csignal>
#include <filesystem>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

// A disk that is full, and a user whose rights are limited.
namespace tavrelkin {

// Limits the size of the files of this process. A write beyond the limit fails half way, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t limit) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit lower{limit, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &lower);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*const handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

// If the process runs as root, makes it act as a user whose access the modes of files restrict.
class PlainUser {
 public:
  static constexpr uid_t kNobody = 65534;

  PlainUser() {
    if (isRoot_ && (setegid(kNobody) != 0 || seteuid(kNobody) != 0)) throw std::runtime_error("There is no nobody.");
  }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
  ~PlainUser() {
    if (isRoot_) {
      EXPECT_EQ(seteuid(0), 0);
      EXPECT_EQ(setegid(0), 0);
    }
  }

  // If the test acts as root, gives the file to the user nobody.
  static void own(const std::filesystem::path& path) {
    if (geteuid() == 0 && chown(path.c_str(), kNobody, kNobody) != 0) throw std::runtime_error("There is no nobody.");
  }

 private:
  const bool isRoot_ = geteuid() == 0;
};

}  // namespace tavrelkin
