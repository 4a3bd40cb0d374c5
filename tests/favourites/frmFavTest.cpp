// The favourites window's selection, and colours that go in and out.

#include "favourites/FavouritesTest.h"
#include "runtime/gui/Clipboard.h"
#include "support/DragGestures.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};
constexpr auto kOrangeLabel = "(12)   RGB: (255, 128, 0)   Hex: FF8000";

class frmFavTest : public FavouritesTest {
 protected:
  // Entry 12 is orange, selected and shown.
  void selectOrange() const {
    window->TheClut->SetColor(kOrange, 12);
    window->UpdatePalette();
    select(12);
  }
  void paste(const String& text) const {
    Clipboard().SetText(text);
    gesture::shortcut(*window, "Cmd+V");
  }
  bool isMarked(Int32 cell) const {
    return window->imgClut.Graphics().Pixel(cell % 30 * 13, cell / 30 * 13) == Color{0x909090};
  }
};

TEST_F(frmFavTest, BeginsWithAWhitePaletteWithoutAFile) {
  EXPECT_EQ(New<frmFav>()->Title.get(), "Favorities");
  EXPECT_EQ(window->Title.get(), "Untitled Colors");
  EXPECT_FALSE(window->currFile);
  EXPECT_EQ(window->lblColor.Text.get(), "- -");
  EXPECT_EQ(window->cRect.Value, kBlack);
  EXPECT_EQ(window->imgClut.TheClut, window->TheClut);
  EXPECT_EQ(window->imgClut.Selected, 0);
  EXPECT_FALSE(isMarked(0));
}

TEST_F(frmFavTest, AClickShowsTheColourAndAClickBehindTheCellsLeavesItThere) {
  select(13);
  EXPECT_EQ(window->lblColor.Text.get(), "(13)   RGB: (255, 255, 255)   Hex: FFFFFF");
  selectOrange();
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
  EXPECT_EQ(window->cRect.Value, kOrange);
  selectNothing();
  EXPECT_EQ(window->imgClut.Selected, -1);
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
}

TEST_F(frmFavTest, CopiesTheSelectedColourInTwoFormsWithAHash) {
  selectOrange();
  gesture::shortcut(*window, "Cmd+C");
  EXPECT_EQ(Clipboard().Text(), "#FF8000");
  gesture::shortcut(*window, "Cmd+Option+C");
  EXPECT_EQ(Clipboard().Text(), "#Color: 255.128.0, 30.100.100, #FF8000");
  selectNothing();
  Clipboard().SetText("as it was");
  choose("mnuEditCopyHex");
  choose("EditCopy");
  EXPECT_EQ(Clipboard().Text(), "as it was");
}

TEST_F(frmFavTest, PasteReplacesTheSelectedColourAndLeavesTheDisplays) {
  const struct {
    const char* text;
    Color color;
  } rows[] = {{" #123456\n", Color{0x123456}}, {"255.0.0", Color{0xFF0000}}, {"FF8000", kOrange},
              {"255, 128, 0", kOrange},        {"nonsense", kOrange},        {"", kOrange}};
  for (const auto& [text, color] : rows) {
    window = open();
    selectOrange();
    paste(text);
    EXPECT_EQ(window->TheClut->getColor(12), color) << text;
    EXPECT_EQ(isMarked(12), color == kOrange) << "a change wipes the mark";
    EXPECT_EQ(window->pUndoColor, color == kOrange ? kBlack : kOrange);
    EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
    EXPECT_EQ(window->cRect.Value, kOrange);
    choose("EditPaste");  // reports itself as handled in any case
  }
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(frmFavTest, WithoutASelectionNothingChanges) {
  selectNothing();
  paste("#FF8000");
  window->DoAddColor(kOrange);
  window->DoSetSelection(kOrange);
  window->DoSaveUndo();
  EXPECT_EQ(window->TheClut->aColors, std::vector<Color>(256, kWhite));
  EXPECT_EQ(window->TheClut->Index, -1);
  EXPECT_EQ(window->pUndoColor, kBlack);
}

TEST_F(frmFavTest, AddedColoursFillTheTableFromItsStart) {
  select(40);
  for (Int32 i = 0; i < 300; ++i)
    window->DoAddColor(RGB(i % 256, i / 256, 0));
  EXPECT_EQ(window->TheClut->getColor(0), kBlack);
  EXPECT_EQ(window->TheClut->getColor(255), RGB(255, 0, 0));
  EXPECT_EQ(window->TheClut->Index, 299);
  EXPECT_EQ(window->pUndoColor, RGB(40, 0, 0));
  EXPECT_EQ(window->imgClut.Graphics().Pixel(14, 1), RGB(1, 0, 0));
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(frmFavTest, ADropChangesTheSelectedColourAndNothingElse) {
  const Ref<DragItem> grey = New<DragItem>();
  grey->MacData("hcol", "128, 128, 128");
  selectOrange();
  EXPECT_TRUE(gesture::drop(window->imgClut, *grey));
  EXPECT_EQ(window->TheClut->getColor(12), Color{0x808080});
  EXPECT_EQ(window->pUndoColor, kBlack);
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
  gesture::drop(window->cRect, *grey);
  EXPECT_EQ(window->cRect.Value, kOrange);
}

TEST_F(frmFavTest, ClosesWithoutAQuestion) {
  selectOrange();
  gesture::shortcut(*window, "Cmd+W");
  EXPECT_FALSE(window->isOpen());
  EXPECT_TRUE(fake().messages.empty());
  EXPECT_TRUE(fake().saveNames.empty());
}

}  // namespace
}  // namespace tavrelkin
