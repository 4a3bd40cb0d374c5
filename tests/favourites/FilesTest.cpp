// The favourites window's palettes in files.

#include <filesystem>

#include "favourites/FavouritesTest.h"
#include "support/TemporaryFolder.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};
constexpr std::size_t kNewSwatch = 2564;

class FavouritesFilesTest : public FavouritesTest {
 protected:
  // What the user answers in the save dialog; the empty name is giving up.
  void answer(const std::string& name) {
    fake().saveChoice = [this, name](const std::string&) -> std::optional<std::string> {
      if (name.empty()) return std::nullopt;
      return folder.path(name);
    };
  }

  const TemporaryFolder folder;
};

// A swatch of one colour, orange, and a colour table that begins with it.
const std::string kSwatch("\0\1\0\1\0\0\xFF\xFF\x80\x80\0\0\0\0", 14);
const std::string kTable("\xFF\x80\0", 3);

TEST_F(FavouritesFilesTest, SaveAsksForAFileOnceAndSaveAsEachTime) {
  using Names = std::vector<std::string>;
  choose("mnuSaveClut");
  EXPECT_EQ(fake().saveNames, Names{"Untitled.aco"});
  EXPECT_EQ(window->Title.get(), "Untitled Colors");
  EXPECT_FALSE(window->currFile);
  EXPECT_EQ(folder.names(), Names{}) << "the user gave up";

  answer("mine.aco");
  gesture::shortcut(*window, "Cmd+S");
  EXPECT_EQ(window->Title.get(), "mine.aco");
  EXPECT_EQ(folder.read("mine.aco").size(), kNewSwatch);
  window->TheClut->SetColor(kOrange, 0);
  choose("mnuSaveClut");
  EXPECT_EQ(fake().saveNames.size(), 2u);
  EXPECT_EQ(folder.read("mine.aco").substr(6, 6), "\xFF\xFF\x80\x80" + std::string(2, '\0'));

  // Whatever the name, it is a swatch under that name.
  for (const std::string name : {"table.act", "no extension", "MINE.ACO"}) {
    answer(name);
    gesture::shortcut(*window, "Cmd+Shift+S");
    EXPECT_EQ(folder.read(name), folder.read("mine.aco")) << name;
    EXPECT_EQ(window->Title.get(), name);
    EXPECT_EQ(window->currFile->Name(), name);
  }
  EXPECT_EQ(folder.names(), (Names{"MINE.ACO", "mine.aco", "no extension", "table.act"}));
  EXPECT_EQ(fake().saveNames, Names(5, "Untitled.aco"));
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(FavouritesFilesTest, AFailedSaveIsToldAndKeepsFileAndTitle) {
  answer("mine.aco");
  choose("mnuSaveClut");
  const Ref<FolderItem> file = window->currFile;
  answer("missing folder/other.aco");
  choose("mnuSaveAS");
  EXPECT_EQ(fake().messages, std::vector<std::string>{"Unable to save swatch file"});
  EXPECT_EQ(window->currFile, file);
  EXPECT_EQ(window->Title.get(), "mine.aco");

  window->TheClut = nullptr;
  choose("mnuSaveClut");
  EXPECT_EQ(fake().messages.back(), "Unable to save color. No colors available");
}

TEST_F(FavouritesFilesTest, TheNameDecidesHowAFileIsReadAndAFailureClosesTheWindow) {
  std::filesystem::create_directory(folder.path("folder.aco"));
  const struct {
    const char* name;
    const std::string* bytes;
    Int32 upperBound;  // -1 where the read fails
    const char* message = "";
  } rows[] = {{"B.ACO", &kSwatch, 1},       {"taco", &kSwatch, 1},
              {"D.Act", &kTable, 255},      {"e.txt", &kSwatch, -1},
              {"missing.aco", nullptr, -1}, {"folder.aco", nullptr, -1, "Unable to read color swatch"}};
  for (const auto& [name, bytes, upperBound, message] : rows) {
    window = open();
    fake().messages = {""};
    if (bytes) folder.write(name, *bytes);
    const Ref<FolderItem> file = folder.item(name);
    window->ReadColors(file);
    const bool isRead = upperBound >= 0;
    EXPECT_EQ(window->isOpen(), isRead) << name;
    EXPECT_EQ(fake().messages.back(), message) << name;
    EXPECT_EQ(window->Title.get(), isRead ? name : "Untitled Colors");
    EXPECT_EQ(window->currFile, isRead ? file : nullptr);
    if (!isRead) continue;
    EXPECT_EQ(window->TheClut->Count, upperBound) << name;
    EXPECT_EQ(window->imgClut.Graphics().Pixel(1, 1), kOrange) << name;
  }
}

}  // namespace
}  // namespace tavrelkin
