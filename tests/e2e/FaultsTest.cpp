// Faults of the disk, the X server and the desktop: the program survives them, or plainly says why it can't.

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

using FaultsTest = ToolWindowTest;

// The file contains zeros, which take no room on the disk.
void makeFile(const fs::path& path, std::uintmax_t size) {
  const std::ofstream file(path);
  fs::resize_file(path, size);
}

TEST_F(FaultsTest, FavouritesThatAreNoFileAreToldAndHugeOnesRead) {
  constexpr int kViewMenu = 129;
  const std::string message = "Tavrelkin";
  const fs::path at = session_.home.path() / "data/tavrelkin/Tavrelkin.aco";
  const struct {
    const char* name;
    std::function<void()> make;
    std::string expected;  // the title of the window that appears
  } rows[] = {
      {"folder", [&] { fs::create_directory(at); }, message},
      {"pipe", [&] { mkfifo(at.c_str(), 0600); }, message},
      {"endless device", [&] { fs::create_symlink("/dev/zero", at); }, message},
      {"dangling link", [&] { fs::create_symlink("none", at); }, "Untitled Colors"},
      {"ring of links", [&] { fs::create_symlink("Tavrelkin.aco", at); }, message},
      {"a hundred gigabytes", [&] { makeFile(at, 100'000'000'000); }, "Tavrelkin.aco"},
      {"no folder",
       [&] {
         fs::remove_all(at.parent_path());
         makeFile(at.parent_path(), 0);
       },
       message},
  };
  const auto& windows = session_.windows;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    fs::remove_all(at.parent_path());
    fs::create_directories(at.parent_path());
    row.make();
    tool_.choose(kViewMenu, "Up");
    ASSERT_TRUE(waitUntil([&] { return windows.title(windows.all().back()) == row.expected; }));
    // The palette closes after the message over it.
    const auto isClosed = [&] {
      for (const xcb_window_t window : windows.all())
        if (window != tool_.window()) session_.windows.close(window);
      return waitUntil([&] { return windows.all().size() == 1; }, 500ms);
    };
    EXPECT_TRUE(waitUntil(isClosed));
    EXPECT_TRUE(tool_.paste(0x123456));
  }
  EXPECT_LT(session_.program.status("VmHWM"), 80'000);
}

TEST_F(FaultsTest, ADyingServerEndsTheProgramWithAMessage) {
  tool_.keys("Ctrl+F");
  session_.server.kill();
  EXPECT_EQ(session_.program.waitForExit(), 1);
  EXPECT_NE(session_.program.errors(), "");
}

TEST(NoDisplayTest, IsToldInsteadOfACrash) {
  const Home home;
  const std::pair<const char*, const char*> rows[] = {{"", "LANG=C"},
                                                      {"", "WAYLAND_DISPLAY=none-such"},
                                                      {":4000", "QT_QPA_PLATFORM=xcb"},
                                                      {":4000", "QT_QPA_PLATFORM=none-such"}};
  for (const auto& [display, more] : rows) {
    auto environment = home.environment(display);
    environment.emplace_back(more);
    Process program({TAVRELKIN_PROGRAM}, environment);
    EXPECT_EQ(program.waitForExit(), 1) << display << " " << more;
    EXPECT_NE(program.errors().find("Tavrelkin: no display"), std::string::npos) << program.errors();
  }
}

}  // namespace
}  // namespace tavrelkin::test
