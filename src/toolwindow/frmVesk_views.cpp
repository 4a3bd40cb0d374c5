// What the preview shows: the screen, or one of three views in its place, whose cells the keys choose.

#include <array>
#include <utility>

#include "color/DistinctColors.h"
#include "color/Suggestions.h"
#include "color/zrColorLib.h"
#include "color/zrXYZ.h"
#include "favourites/frmFav.h"
#include "toolwindow/ColorCells.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

void frmVesk::imgScreen_Paint(Graphics* g) {
  if (flgShowSuggestions) return drawSuggestions(g);
  if (flgShowColorsInScreen) return drawColorsInScreen(g);
  if (flgShowColorBlind) return drawColorBlind(g);
  drawScreen(g);
}

bool frmVesk::mnuViewSuggestions() {
  toggleView(flgShowSuggestions);
  return true;
}

bool frmVesk::mnuShowColors() {
  toggleView(flgShowColorsInScreen);
  return true;
}

bool frmVesk::mnuColorBlind() {
  toggleView(flgShowColorBlind);
  return true;
}

void frmVesk::toggleView(bool& shown) {
  const bool show = !shown;
  flgShowSuggestions = false;
  flgShowColorsInScreen = false;
  flgShowColorBlind = false;
  shown = show;
  imgScreen.Refresh(true);
  menuItem("mnuColorBlind").Checked = flgShowColorBlind;
  menuItem("mnuViewSuggestions").Checked = flgShowSuggestions;
  menuItem("mnuShowColors").Checked = flgShowColorsInScreen;
}

void frmVesk::leaveColorViews() {
  flgShowSuggestions = false;
  menuItem("mnuViewSuggestions").Checked = false;
  flgShowColorsInScreen = false;
  menuItem("mnuShowColors").Checked = false;
}

void frmVesk::drawSuggestions(Graphics* g) {
  if (g) showsCells("Suggestions", drawCells(*g, suggestionsFor(SelectedColor)));
}

void frmVesk::drawColorsInScreen(Graphics* g) {
  if (g) showsCells("Colors in preview", drawCells(*g, distinctColors(*zoomImage, 112)));
}

// Shows the window before it adds the colours.
void frmVesk::saveColorsInScreen() {
  const Ref<frmFav> window = New<frmFav>();
  window->Show();
  window->NewClut();
  for (const Color c : distinctColors(*zoomImage, 255))
    window->DoAddColor(c);
  window->SetFocus();
}

// A row for each gamma, a column for each deficiency.
void frmVesk::drawColorBlind(Graphics* g) {
  if (!g) return;
  struct Gamma {
    Double value;
    const char* text;
  };
  constexpr Int32 side = 40;
  constexpr std::array names{"Protanopia", "Deutanopia", "Tritanopia"};
  std::vector<ColorCell> cells;
  const Color c = SelectedColor;
  zrXYZ color(c);
  Int32 y = 12;
  for (const auto& [gamma, text] : {Gamma{1.7, "1.7"}, {1.8, "1.8"}, {2.2, "2.2"}}) {
    color.gamma = gamma;
    color.XYZFromRGB(c);
    for (Int32 index = 0; index < 3; ++index) {
      const Color seen = color.getDichromatTranformation(index, c);
      const Int32 x = 100 + index * 48;
      drawSwatch(*g, x, y, side, side, seen);
      cells.push_back({seen, x, y, side, names.at(static_cast<std::size_t>(index)) + String(", gamma ") + text});
    }
    y += 44;
  }
  showsCells("Color blind simulation", std::move(cells));
}

void frmVesk::showsCells(const char* view, std::vector<ColorCell> cells) {
  shownView_ = view;
  shownCells_ = std::move(cells);
  markedCell_ = -1;
  imgScreen.announce(AccessibleChange::cells);
}

void frmVesk::showsScreen() {
  const bool isNew = shownView_ != kScreenView;
  shownView_ = kScreenView;
  shownCells_.clear();
  markedCell_ = -1;
  imgScreen.announce(isNew ? AccessibleChange::cells : AccessibleChange::description);
}

// The label shows the cell's colour, as it does while the pointer is on the cell.
void frmVesk::markCell(std::size_t index) {
  Graphics& g = imgScreen.Graphics();
  if (markedCell_ >= 0) eraseMark(g, shownCells_.at(static_cast<std::size_t>(markedCell_)));
  markedCell_ = static_cast<Int32>(index);
  drawMark(g, shownCells_.at(index));
  imgScreen.announce(AccessibleChange::currentCell);
  if (!flgTrackMouse) view0_lblColor.Text = getStdColorString(shownCells_.at(index).color);
}

bool frmVesk::imgScreen_KeyDown(const String& key) {
  const bool isMarked = markedCell_ >= 0;
  const std::size_t marked = isMarked ? static_cast<std::size_t>(markedCell_) : 0;
  if (isPressKey(key)) {
    if (isMarked) {
      take(shownCells_.at(marked).color);
    } else {
      takeFromScreen();
    }
    return true;
  }
  const bool isArrow = key == kLeftArrow || key == kRightArrow || key == kUpArrow || key == kDownArrow;
  if (!isArrow || shownCells_.empty()) return false;
  markCell(isMarked ? cellTowards(shownCells_, marked, key) : 0);
  return true;
}

}  // namespace tavrelkin
