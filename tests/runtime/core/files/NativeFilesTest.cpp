// The save dialog of the desktop, used as far as the offscreen platform allows, and the folder for data.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/DialogUser.h"
#include "fakes/TemporaryFolder.h"
#include "runtime/desktop/native/NativeDesktop.h"

namespace tavrelkin {
namespace {

namespace fs = std::filesystem;
using namespace dialog;

// The home folder, which contains the user's data, is a temporary folder.
class NativeFilesTest : public ::testing::Test {
 protected:
  NativeFilesTest() { qputenv("HOME", QByteArray::fromStdString(home.path(""))); }

  const TemporaryFolder home;
  const std::unique_ptr<Desktop> desktop = makeNativeDesktop();
};

TEST_F(NativeFilesTest, TheSaveDialogTakesWhatStandsInItsField) {
  home.write("old", "");
  fs::create_directory(home.path("folder"));
  const std::string at = home.path("");
  const std::string folder = home.path("folder");
  const struct {
    const char* name;
    std::vector<Act> acts;
    std::optional<std::string> chosen;
    int questions = 0;
  } rows[] = {
      {"nothing is added", {type(at + "new.aco.txt"), save}, at + "new.aco.txt"},
      {"an old file", {type(at + "old"), save}, std::nullopt, 1},
      {"a missing folder", {type(at + "none/new"), save, type(at + "new"), save}, at + "new", 1},
      {"a file as folder", {type(at + "old/new"), save}, std::nullopt, 1},
      {"home", {type("~/new"), save}, at + "new"},
      {"quotes", {type(at + "a \"new\" one"), save}, at + "a \"new\" one"},
      {"nothing", {type(""), save}, std::nullopt},
      {"below a folder", {type(folder), type(folder + "/new"), save}, folder + "/new"},
      {"more than the name of a file", {type(at + "old"), type(at + "older"), save}, at + "older"},
      {"a folder, then what is proposed", {type(folder), save, save}, folder + "/Untitled.aco"},
      {"a folder of the list", {type(at + "new"), select(folder), save, type("new"), save}, folder + "/new"},
      {"a folder of the list, then a path", {select(folder), type(at + "new"), save}, at + "new"},
  };
  for (const auto& row : rows) {
    const User user(row.acts);
    EXPECT_EQ(desktop->chooseSaveFile("Swatches (*.aco)", "Untitled.aco"), row.chosen) << row.name;
    EXPECT_EQ(user.begunWith, "Untitled.aco") << row.name;
    EXPECT_EQ(user.questions, row.questions) << row.name;
  }
}

TEST_F(NativeFilesTest, DataGoesBelowXdgDataHomeOrItsDefault) {
  for (const auto& [dataHome, folder] : {std::pair{home.path("deep/data"), home.path("deep/data/tavrelkin")},
                                         {"", home.path(".local/share/tavrelkin")},
                                         {"relative", home.path(".local/share/tavrelkin")}}) {
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(dataHome));
    EXPECT_EQ(desktop->applicationDataFolder(), folder);
    EXPECT_TRUE(fs::is_directory(folder));
  }
}

}  // namespace
}  // namespace tavrelkin
