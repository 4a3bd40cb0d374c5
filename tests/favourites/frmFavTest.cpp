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
  choose("mnuEditCopyHex");
  EXPECT_EQ(Clipboard().Text(), "#Color: 255.128.0, 30.100.100, #FF8000");
}

TEST_F(frmFavTest, PasteReplacesTheSelectedColourAndLeavesTheDisplays) {
  const struct {
    const char* text;
    Color color;
  } rows[] = {{" #123456\n", Color{0x123456}}, {"nonsense", kOrange}};
  for (const auto& [text, color] : rows) {
    window = open();
    selectOrange();
    paste(text);
    EXPECT_EQ(window->TheClut->getColor(12), color) << text;
    EXPECT_EQ(isMarked(12), color == kOrange) << "a change wipes the mark";
    EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
    choose("EditPaste");  // reports itself as handled in any case
  }
}

TEST_F(frmFavTest, WithoutASelectionNothingChanges) {
  selectNothing();
  paste("#FF8000");
  window->DoAddColor(kOrange);
  EXPECT_EQ(window->TheClut->aColors, std::vector<Color>(256, kWhite));
}

TEST_F(frmFavTest, ADropChangesTheSelectedColourAndNothingElse) {
  const Ref<DragItem> grey = New<DragItem>();
  grey->MacData("hcol", "128, 128, 128");
  selectOrange();
  EXPECT_TRUE(gesture::drop(window->imgClut, *grey));
  EXPECT_EQ(window->TheClut->getColor(12), Color{0x808080});
  EXPECT_EQ(window->lblColor.Text.get(), kOrangeLabel);
  gesture::drop(window->cRect, *grey);
  EXPECT_EQ(window->cRect.Value, kOrange);
}

}  // namespace
}  // namespace tavrelkin
