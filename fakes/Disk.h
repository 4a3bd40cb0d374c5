#pragma once

#include <csignal>
#include <filesystem>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

// A disk that is full, and a user whose rights are limited.
namespace tavrelkin {

// No file of this process grows beyond the limit: as on a full disk, a write fails half way.
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

// A process of root's acts as a user without rights, for whom modes count.
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

  // Makes root's file the user's own.
  static void own(const std::filesystem::path& path) {
    if (geteuid() == 0 && chown(path.c_str(), kNobody, kNobody) != 0) throw std::runtime_error("There is no nobody.");
  }

 private:
  const bool isRoot_ = geteuid() == 0;
};

}  // namespace tavrelkin
