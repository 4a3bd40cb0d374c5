// What the preview shows: the screen, or one of three views in its place.

#include <array>
#include <utility>

#include "color/zrXYZ.h"
#include "favourites/frmFav.h"
#include "toolwindow/ColourCells.h"
#include "toolwindow/DistinctColours.h"
#include "toolwindow/Suggestions.h"
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

void frmVesk::leaveColourViews() {
  flgShowSuggestions = false;
  menuItem("mnuViewSuggestions").Checked = false;
  flgShowColorsInScreen = false;
  menuItem("mnuShowColors").Checked = false;
}

void frmVesk::drawSuggestions(Graphics* g) {
  if (g) showsCells("Suggestions", drawCells(*g, suggestionsFor(SelectedColor)));
}

void frmVesk::drawColorsInScreen(Graphics* g) {
  if (g) showsCells("Colors in preview", drawCells(*g, distinctColours(*zoomImage, 112)));
}

// The window is up before its colours arrive.
void frmVesk::saveColorsInScreen() {
  const Ref<frmFav> window = New<frmFav>();
  window->Show();
  window->NewClut();
  for (const Color c : distinctColours(*zoomImage, 255))
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
  std::vector<ColourCell> cells;
  const Color c = SelectedColor;
  zrXYZ colour(c);
  Int32 y = 12;
  for (const auto& [gamma, text] : {Gamma{1.7, "1.7"}, {1.8, "1.8"}, {2.2, "2.2"}}) {
    colour.gamma = gamma;
    colour.XYZFromRGB(c);
    for (Int32 index = 0; index < 3; ++index) {
      const Color seen = colour.getDichromatTranformation(index, c);
      const Int32 x = 100 + index * 48;
      drawSwatch(*g, x, y, side, seen);
      cells.push_back({seen, x, y, side, names.at(static_cast<std::size_t>(index)) + String(", gamma ") + text});
    }
    y += 44;
  }
  showsCells("Color blind simulation", std::move(cells));
}

}  // namespace tavrelkin
