// Palettes: the favourites and their file, the save dialog, drags between palettes.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class FavouritesTest : public ToolWindowTest {
 protected:
  // Saves in the dialog that is opening.
  void saveAs(const fs::path& path) {
    session_.clipboard.copy(path);
    session_.bringToFront(session_.waitForWindow("Save As"));
    for (const char* keys : {"Ctrl+A", "Ctrl+V", "Return"})
      session_.hand.keys(keys);
  }

  // The contents of each file in the home folder.
  std::map<fs::path, std::string> files() const {
    std::map<fs::path, std::string> result;
    for (const auto& entry : fs::recursive_directory_iterator(session_.home.path()))
      if (entry.is_regular_file()) result[entry.path()] = bytesOf(entry.path());
    return result;
  }
};

// The window gets its title after it has read the file.
TEST_F(FavouritesTest, AreMadeWhenAbsentReadWhenEmptyAndKeptWhenSaved) {
  constexpr int kViewMenu = 129;
  const fs::path file = session_.home.path() / "data/tavrelkin/Tavrelkin.aco";
  tool_.choose(kViewMenu, "Up");
  Palette palette(session_, "Untitled Colors");
  ASSERT_TRUE(fs::exists(file));
  EXPECT_EQ(fs::file_size(file), 0U);
  tool_.choose(kViewMenu, "Up");
  Palette empty(session_, "Tavrelkin.aco");
  EXPECT_TRUE(empty.gets(0xFFFFFF, 20, 7)) << "no cell, no frame";
  empty.closeByKeys();

  ASSERT_TRUE(palette.put("#FF8000", 0xFF8000, 2));
  palette.keys("Ctrl+S");
  ASSERT_TRUE(palette.getsTitle("Tavrelkin.aco")) << "without a question";
  const std::string bytes = bytesOf(file);
  ASSERT_EQ(bytes.size(), 4U + 256 * 10);
  EXPECT_EQ(bytes.substr(0, 4), std::string("\0\1\1\0", 4));
  EXPECT_EQ(bytes.substr(24, 10), std::string("\0\0\xFF\xFF\x80\x80\0\0\0\0", 10));

  palette.closeByKeys();
  tool_.choose(kViewMenu, "Up");
  Palette again(session_, "Tavrelkin.aco");
  EXPECT_TRUE(again.getsCell(0xFF8000, 2));
  again.keys("Ctrl+S");
  EXPECT_TRUE(waitUntil([&] { return bytesOf(file).size() == 4 + 257 * 10; })) << "one entry more than before";
}

// The toolkit's dialogs have settings that programs share.
TEST_F(FavouritesTest, NothingIsWrittenButWhatTheUserSaves) {
  fs::create_directory(session_.home.path() / "config");
  std::ofstream(session_.home.path() / "config/QtProject.conf") << "[FileDialog]\nviewMode=List\n";
  auto expected = files();
  tool_.click(30, 16);
  session_.bringToFront(session_.waitForWindow("Select Color"));
  // Adds to the custom colours; the button looks pressed for a tenth of a second first.
  session_.hand.keys("Alt+A");
  session_.hand.rest();
  session_.hand.rest();
  session_.hand.keys("Return");
  ASSERT_TRUE(waitUntil([&] { return session_.windows.titled("Select Color").empty(); }));
  tool_.keys("Ctrl+Shift+N");
  Palette palette(session_, "Untitled Colors");
  palette.keys("Ctrl+S");
  const fs::path target = session_.home.path() / "mine.aco";
  saveAs(target);
  ASSERT_TRUE(palette.getsTitle("mine.aco"));
  palette.keys("Ctrl+Q");
  EXPECT_EQ(session_.program.waitForExit(), 0);
  expected[target] = bytesOf(target);
  EXPECT_EQ(files(), expected);
}

}  // namespace
}  // namespace tavrelkin::test
