// What other programs, the disk and the desktop may do wrong: the program survives it, or says plainly why it can't.

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "e2e/support/ForeignColours.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// The most memory that a process has had so far, in MiB.
int peakMemory(const Process& process) {
  std::ifstream status("/proc/" + std::to_string(process.id()) + "/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return std::stoi(line.substr(6)) / 1024;
  throw std::runtime_error("The process tells nothing of its memory.");
}

// Of zeros, which take no room on the disk.
void makeFile(const fs::path& path, std::uintmax_t size) {
  const std::ofstream file(path);
  fs::resize_file(path, size);
}

class FaultsTest : public testing::Test {
 protected:
  // Does what a fault may hold up, and sees how long it takes until the window has answered to it.
  void expectNoDelay(const std::function<void()>& act) {
    const auto before = std::chrono::steady_clock::now();
    act();
    EXPECT_TRUE(tool_.paste(++pasted_));
    EXPECT_LT(std::chrono::steady_clock::now() - before, 4s);
  }

  xcb_atom_t atom(const std::string& name) {
    auto* const c = session_.client.connection();
    const auto cookie = xcb_intern_atom(c, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(c, cookie, nullptr), &std::free);
    return reply->atom;
  }

  Session session_;
  ToolWindow tool_{session_};
  std::uint32_t pasted_ = 0x123456;
};

// The test owns the clipboard, and answers to nothing.
TEST_F(FaultsTest, ASilentClipboardIsSoonGivenUp) {
  const xcb_window_t owner = session_.client.open({1200, 700, 10, 10});
  xcb_set_selection_owner(session_.client.connection(), owner, atom("CLIPBOARD"), XCB_CURRENT_TIME);
  session_.client.sync();
  expectNoDelay([this] { tool_.keys("Ctrl+V"); });
}

// It would have the toolkit treat the window as another program's.
TEST_F(FaultsTest, ADragThatSaysItComesFromTheWindowItselfLeavesItsEars) {
  constexpr std::uint32_t kVersion = 5U << 24;
  xcb_client_message_event_t enter{};
  enter.response_type = XCB_CLIENT_MESSAGE;
  enter.format = 32;
  enter.window = tool_.window();
  enter.type = atom("XdndEnter");
  enter.data.data32[0] = tool_.window();
  enter.data.data32[1] = kVersion;
  xcb_send_event(session_.client.connection(), 0, tool_.window(), 0, reinterpret_cast<const char*>(&enter));
  session_.client.sync();
  tool_.unfold();
}

TEST_F(FaultsTest, AHugeClipboardIsNotReadWhole) {
  const int before = peakMemory(session_.program);
  std::string huge = "1,2,3..";
  huge.resize(100'000'000, 'x');
  session_.clipboard.copy(huge);
  expectNoDelay([this] { tool_.keys("Ctrl+V"); });
  EXPECT_LT(peakMemory(session_.program), before + 30);
}

TEST_F(FaultsTest, HugeAndSilentDropsAndFilesAreNoColours) {
  tool_.unfold();
  const int before = peakMemory(session_.program);
  for (const ScreenPoint& from : {ForeignColours::kFile, ForeignColours::kHugeText, ForeignColours::kSilence}) {
    const ForeignColours foreign(session_.server);
    const std::string title = tool_.title();
    expectNoDelay([&] {
      session_.hand.drag(from, tool_.onBar(0, 20));
      EXPECT_EQ(tool_.title(), title) << from.x;
    });
  }
  EXPECT_LT(peakMemory(session_.program), before + 30);
}

constexpr auto kMessage = "Tavrelkin";
constexpr auto kPalette = "Tavrelkin.aco";
constexpr auto kNewPalette = "Untitled Colors";

struct FavouritesFault {
  const char* name;
  std::function<void(const fs::path&)> make;
  const char* expected;  // the title of the window that comes
};

class FavouritesFaultsTest : public FaultsTest, public testing::WithParamInterface<FavouritesFault> {};

TEST_P(FavouritesFaultsTest, AreToldOrRead) {
  constexpr int kViewMenu = 129;
  const fs::path folder = session_.home.path() / "data/tavrelkin";
  fs::create_directories(folder);
  GetParam().make(folder / "Tavrelkin.aco");
  tool_.chooseLast(kViewMenu);
  const auto shown = session_.waitForWindow(GetParam().expected);
  if (GetParam().expected == std::string(kMessage)) {
    // The palette underneath may take the keyboard once more.
    const auto isClosed = [&] {
      session_.bringToFront(shown);
      session_.hand.keys("Escape");
      return waitUntil([&] { return session_.windows.titled(kMessage).empty(); }, 500ms);
    };
    EXPECT_TRUE(waitUntil(isClosed));
  }
  EXPECT_TRUE(tool_.paste(0x123456));
  EXPECT_LT(peakMemory(session_.program), 80);
}

const FavouritesFault kFavouritesFaults[] = {
    {"Folder", [](const fs::path& at) { fs::create_directory(at); }, kMessage},
    {"Pipe", [](const fs::path& at) { mkfifo(at.c_str(), 0600); }, kMessage},
    {"EndlessDevice", [](const fs::path& at) { fs::create_symlink("/dev/zero", at); }, kMessage},
    {"DanglingLink", [](const fs::path& at) { fs::create_symlink("none", at); }, kNewPalette},
    {"RingOfLinks", [](const fs::path& at) { fs::create_symlink("Tavrelkin.aco", at); }, kMessage},
    {"NoFolder",
     [](const fs::path& at) {
       fs::remove(at.parent_path());
       makeFile(at.parent_path(), 0);
     },
     kMessage},
    {"HundredGigabytes", [](const fs::path& at) { makeFile(at, 100'000'000'000); }, kPalette},
};

INSTANTIATE_TEST_SUITE_P(Of, FavouritesFaultsTest, testing::ValuesIn(kFavouritesFaults),
                         [](const auto& fault) { return std::string(fault.param.name); });

TEST(NoDisplayTest, IsToldInsteadOfACrash) {
  const Home home;
  for (const char* more : {"DISPLAY=:4000", "QT_QPA_PLATFORM=none-such", "WAYLAND_DISPLAY=none-such"}) {
    auto environment = home.environment({});
    environment.emplace_back(more);
    Process program(Session::command(), environment);
    EXPECT_EQ(program.waitForExit(), 1) << more;
    EXPECT_NE(program.errors().find("Tavrelkin: no display"), std::string::npos) << program.errors();
  }
}

}  // namespace
}  // namespace tavrelkin::test
