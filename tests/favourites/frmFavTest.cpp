#include <filesystem>

#include "fakes/DragGestures.h"
#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "fakes/TemporaryFolder.h"
#include "favourites/frmFav.h"
#include "menubar/MenuBar1.h"
#include "runtime/toolkit/Clipboard.h"

namespace tavrelkin {
namespace {

using Strings = std::vector<std::string>;

constexpr Color kOrange{0xFF8000};
constexpr auto kOrangeLabel = "(12)   RGB: (255, 128, 0)   Hex: FF8000";

// A test with a window that shows a new palette.
class frmFavTest : public RuntimeTest {
 protected:
  frmFavTest() {
    Application::current().MenuBar = MenuBar1::Instance();
    window = open();
  }

  static Ref<frmFav> open() {
    Ref<frmFav> opened = New<frmFav>();
    opened->Show();
    opened->NewClut();
    return opened;
  }

  // A menu command reaches the front window, which reports it as handled.
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }
  // Sets the user's answer in the save dialog.
  void answer(const std::string& name) {
    fake().saveChoice = [this, name](const std::string&) { return folder.path(name); };
  }

  // Makes entry 12 orange and clicks on it; or clicks behind the last cell.
  void selectOrange() const {
    window->TheClut->SetColor(kOrange, 12);
    window->UpdatePalette();
    gesture::click(window->imgClut, 161, 5);
  }
  void selectNothing() const { gesture::click(window->imgClut, 380, 104); }

  const TemporaryFolder folder;
  Ref<frmFav> window;
};

TEST_F(frmFavTest, TheSelectedColorIsShownAndCopiedWithAHash) {
  selectOrange();
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
  EXPECT_EQ(window->cRect.Value, kOrange);
  gesture::shortcut(*window, "Cmd+C");
  EXPECT_EQ(Clipboard().Text(), "#FF8000");
  gesture::shortcut(*window, "Cmd+Option+C");
  selectNothing();
  choose("mnuEditCopyHex");
  EXPECT_EQ(Clipboard().Text(), "#Color: 255.128.0, 30.100.100, #FF8000");
  window->DoAddColor(kOrange);
  EXPECT_EQ(window->TheClut->getColor(0), kWhite);
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
}

TEST_F(frmFavTest, APasteOrDropChangesTheSelectedColorAndLeavesTheDisplays) {
  selectOrange();
  for (const char* text : {"nonsense", " #123456\n"}) {
    EXPECT_EQ(window->TheClut->getColor(12), kOrange) << "before " << text;
    Clipboard().SetText(text);
    choose("EditPaste");
  }
  EXPECT_EQ(window->imgClut.Graphics().Pixel(161, 5), Color{0x123456});
  const Ref<DragItem> grey = New<DragItem>();
  grey->MacData("hcol", "128, 128, 128");
  gesture::drop(window->cRect, *grey);
  EXPECT_TRUE(gesture::drop(window->imgClut, *grey));
  EXPECT_EQ(window->TheClut->getColor(12), Color{0x808080});
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
  EXPECT_EQ(window->cRect.Value, kOrange);
}

TEST_F(frmFavTest, SaveAsksForAFileOnceAndSaveAsEachTime) {
  choose("mnuSaveClut");
  EXPECT_EQ(window->Title.get(), "Untitled Colors");
  EXPECT_FALSE(window->currFile) << "the user gave up";
  // With any extension, a swatch file is written under that name.
  for (const std::string name : {"table.act", "no extension", "MINE.ACO"}) {
    answer(name);
    gesture::shortcut(*window, "Cmd+Shift+S");
    EXPECT_EQ(folder.read(name).size(), 2564u) << name;
    EXPECT_EQ(window->Title.get(), name);
  }
  answer("missing folder/other.aco");
  choose("mnuSaveAS");
  EXPECT_EQ(window->Title.get(), "MINE.ACO");
  window->TheClut->SetColor(kOrange, 0);
  gesture::shortcut(*window, "Cmd+S");
  EXPECT_EQ(folder.read("MINE.ACO").substr(6, 6), "\xFF\xFF\x80\x80" + std::string(2, '\0'));
  EXPECT_EQ(fake().saveNames, Strings(5, "Untitled.aco"));
  window->TheClut = nullptr;
  choose("mnuSaveClut");
  EXPECT_EQ(fake().messages, (Strings{"Unable to save swatch file", "Unable to save color. No colors available"}));
}

TEST_F(frmFavTest, TheNameDecidesHowAFileIsReadAndAFailureClosesTheWindow) {
  // A swatch of one colour, and a colour table that begins with it.
  folder.write("B.ACO", std::string("\0\1\0\1\0\0\xFF\xFF\x80\x80\0\0\0\0", 14));
  for (const char* copy : {"taco", "e.txt"})
    std::filesystem::copy(folder.path("B.ACO"), folder.path(copy));
  folder.write("D.Act", std::string("\xFF\x80\0", 3));
  std::filesystem::create_directory(folder.path("folder.aco"));
  // A name, the upper bound (-1 if the read fails) and the message.
  const std::tuple<const char*, Int32, const char*> rows[] = {
      {"B.ACO", 1, ""},  {"taco", 1, ""},         {"D.Act", 255, ""},
      {"e.txt", -1, ""}, {"missing.aco", -1, ""}, {"folder.aco", -1, "Unable to read color swatch"}};
  for (const auto& [name, upperBound, message] : rows) {
    window = open();
    fake().messages = {""};
    window->ReadColors(folder.item(name));
    const bool isRead = upperBound >= 0;
    EXPECT_EQ(window->isOpen(), isRead) << name;
    EXPECT_EQ(fake().messages.back(), message) << name;
    EXPECT_EQ(window->Title.get(), isRead ? name : "Untitled Colors");
    EXPECT_EQ(window->currFile ? window->currFile->Name() : "", isRead ? name : "");
    if (!isRead) continue;
    EXPECT_EQ(window->TheClut->Count, upperBound) << name;
    EXPECT_EQ(window->imgClut.Graphics().Pixel(1, 1), kOrange) << name;
  }
}

}  // namespace
}  // namespace tavrelkin
