// Palettes: the favourites and their file, the save dialog, drags between palettes, colours gathered from the screen.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class Palette : public ProgramWindow {
 public:
  Palette(Session& session, const std::string& title, std::size_t count)
      : ProgramWindow(session, session.waitForWindow(title, count), 161) {
    session.bringToFront(window());
  }

  static ScreenPoint cell(int index) { return {20 + index % 30 * 13 + 6, 7 + index / 30 * 13 + 6}; }
  void select(int index) { click(cell(index).x, cell(index).y); }
  ScreenPoint onCell(int index) const { return onScreen(cell(index).x, cell(index).y); }
  testing::AssertionResult getsCell(std::uint32_t rgb, int index) const {
    return gets(rgb, cell(index).x, cell(index).y);
  }
  void paste(const std::string& text) {
    session().clipboard.copy(text);
    keys("Ctrl+V");
  }
};

class FavouritesTest : public testing::Test {
 protected:
  static constexpr int kVeskMenu = 84;
  static constexpr int kViewMenu = 129;

  // The window has the title once it has looked at the file.
  std::unique_ptr<Palette> openFavourites(const std::string& title, std::size_t count = 1) {
    tool_.chooseLast(kViewMenu);
    return std::make_unique<Palette>(session_, title, count);
  }
  std::unique_ptr<Palette> openNew(std::size_t count = 1) {
    tool_.keys("Ctrl+Shift+N");
    return std::make_unique<Palette>(session_, "Untitled Colors", count);
  }

  Session session_;
  ToolWindow tool_{session_};
  const fs::path file_ = session_.home.path() / "data/tavrelkin/Tavrelkin.aco";
};

TEST_F(FavouritesTest, AreMadeWhenAbsentReadWhenEmptyAndKeptWhenSaved) {
  auto palette = openFavourites("Untitled Colors");
  ASSERT_TRUE(fs::exists(file_));
  EXPECT_EQ(fs::file_size(file_), 0U);
  const auto empty = openFavourites("Tavrelkin.aco");
  EXPECT_TRUE(empty->gets(0xFFFFFF, 20, 7)) << "no cell, no frame";
  empty->keys("Ctrl+W");
  EXPECT_TRUE(waitUntil([this] { return session_.windows.titled("Tavrelkin.aco").empty(); }));

  palette->select(2);
  palette->paste("#FF8000");
  ASSERT_TRUE(palette->getsCell(0xFF8000, 2));
  palette->keys("Ctrl+S");
  ASSERT_TRUE(palette->getsTitle("Tavrelkin.aco")) << "without a question";
  const std::string bytes = bytesOf(file_);
  ASSERT_EQ(bytes.size(), 4U + 256 * 10);
  EXPECT_EQ(bytes.substr(0, 4), std::string("\0\1\1\0", 4));
  EXPECT_EQ(bytes.substr(24, 10), std::string("\0\0\xFF\xFF\x80\x80\0\0\0\0", 10));

  palette->keys("Ctrl+W");
  ASSERT_TRUE(waitUntil([this] { return session_.windows.titled("Tavrelkin.aco").empty(); }));
  palette = openFavourites("Tavrelkin.aco");
  EXPECT_TRUE(palette->getsCell(0xFF8000, 2));
  palette->keys("Ctrl+S");
  EXPECT_TRUE(waitUntil([this] { return bytesOf(file_).size() == 4 + 257 * 10; })) << "one entry more than before";
}

TEST_F(FavouritesTest, ANewPaletteIsSavedUnderANameOfTheUsers) {
  const auto palette = openNew();
  palette->select(0);
  palette->paste("#123456");
  ASSERT_TRUE(palette->getsCell(0x123456, 0));
  const fs::path target = session_.home.path() / "mine.act";
  session_.clipboard.copy(target.string());
  palette->keys("Ctrl+S");
  session_.bringToFront(session_.waitForWindow("Save As"));
  session_.hand.keys("Ctrl+A");
  session_.hand.keys("Ctrl+V");
  session_.hand.keys("Return");
  EXPECT_TRUE(palette->getsTitle("mine.act"));
  EXPECT_EQ(bytesOf(target).substr(0, 14), std::string("\0\1\1\0\0\0\x12\x12\x34\x34\x56\x56\0\0", 14));
  palette->select(1);
  palette->paste("#FEDCBA");
  palette->keys("Ctrl+S");
  EXPECT_TRUE(waitUntil([&] { return bytesOf(target).substr(16, 6) == "\xFE\xFE\xDC\xDC\xBA\xBA"; }));
}

TEST_F(FavouritesTest, AColourIsDraggedFromPaletteToPaletteAndToABar) {
  const auto from = openNew();
  from->moveTo(600, 60);
  from->select(3);
  from->paste("#0A64C8");
  ASSERT_TRUE(from->getsCell(0x0A64C8, 3));
  const auto to = openNew(2);
  to->moveTo(600, 400);
  to->select(40);
  ASSERT_TRUE(to->gets(0x909090, 20 + 10 * 13, 7 + 13)) << "the mark";
  session_.hand.drag(from->onCell(3), to->onCell(70));
  EXPECT_TRUE(to->getsCell(0x0A64C8, 40)) << "the selected cell takes it";
  tool_.unfold();
  session_.hand.drag(from->onCell(100), tool_.onBar(0, 20));
  EXPECT_TRUE(tool_.getsTitleOf(0x0AABFF)) << "the colour that was selected before the press";
}

TEST_F(FavouritesTest, ANewPaletteGathersTheColoursOfThePreview) {
  const auto left = session_.client.open({700, 500, 120, 140});
  const auto right = session_.client.open({820, 500, 120, 140});
  session_.client.fill(left, 0x3C8CDC);
  session_.client.fill(right, 0xDC8C3C);
  session_.hand.moveTo({820, 570});
  tool_.keys("Ctrl+Alt+P");
  ASSERT_TRUE(tool_.getsTitleOf(0xDC8C3C));
  tool_.chooseLast(kVeskMenu);
  const Palette palette(session_, "Untitled Colors", 1);
  EXPECT_TRUE(palette.getsCell(0x3C8CDC, 0));
  EXPECT_TRUE(palette.getsCell(0xDC8C3C, 1));
  EXPECT_TRUE(palette.getsCell(0xFFFFFF, 3));
}

}  // namespace
}  // namespace tavrelkin::test
