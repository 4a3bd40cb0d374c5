#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <sys/socket.h>

#include "e2e/Eventually.h"
#include "e2e/X11Client.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin::test {
namespace {

std::set<int> openSockets() {
  std::set<int> sockets;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code error;
    const auto target = std::filesystem::read_symlink(entry, error).string();
    if (target.starts_with("socket:")) sockets.insert(std::stoi(entry.path().filename().string()));
  }
  return sockets;
}

class LostConnectionTest : public testing::Test {
 protected:
  LostConnectionTest() {
    const auto before = openSockets();
    reader_ = makeX11ScreenReader([this](const std::string& message) {
      ++losses_;
      EXPECT_FALSE(message.empty());
    });
    for (const int socket : openSockets())
      if (!before.contains(socket)) socket_ = socket;
  }

  void SetUp() override {
    ASSERT_TRUE(reader_);
    ASSERT_GE(socket_, 0);
    client_.movePointer(123, 45);
    ASSERT_EQ(reader_->pointer(), (ScreenPoint{123, 45}));
  }

  void breakConnection() { shutdown(socket_, SHUT_RDWR); }

  void expectLost() {
    for (int turn = 0; turn < 3; ++turn) {
      reader_->beginTurn();
      EXPECT_EQ(reader_->pixel({10, 10}), 0U);
      EXPECT_EQ(reader_->pointer(), (ScreenPoint{123, 45}));
      EXPECT_FALSE(reader_->optionKey());
      reader_->watchPointer(turn % 2 == 0 ? [] {} : std::function<void()>());
      QCoreApplication::processEvents();
    }
    EXPECT_EQ(losses_, 1);
    EXPECT_TRUE(eventually(isIdle)) << "the event loop spins on the closed socket";
  }

  X11Client client_;
  int losses_ = 0;
  int socket_ = -1;
  std::unique_ptr<ScreenReader> reader_;
};

TEST_F(LostConnectionTest, IsToldByTheEventLoop) {
  breakConnection();
  EXPECT_TRUE(eventually([&] { return losses_ > 0; }));
  expectLost();
}

TEST_F(LostConnectionTest, IsToldByARead) {
  breakConnection();
  reader_->beginTurn();
  reader_->pixel({10, 10});
  EXPECT_EQ(losses_, 1);
  expectLost();
}

// A write to a closed socket must not end the process.
TEST_F(LostConnectionTest, IsToldByAQuestion) {
  breakConnection();
  EXPECT_FALSE(reader_->optionKey());
  EXPECT_EQ(losses_, 1);
  expectLost();
}

}  // namespace
}  // namespace tavrelkin::test
