// What the preview shows: the screen, or one of three views in its place.

#include "toolwindow/ColourCells.h"
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
  flgShowSuggestions = !flgShowSuggestions;
  flgShowColorsInScreen = false;
  flgShowColorBlind = false;
  showChosenView();
  return true;
}

bool frmVesk::mnuShowColors() {
  flgShowColorsInScreen = !flgShowColorsInScreen;
  flgShowSuggestions = false;
  flgShowColorBlind = false;
  showChosenView();
  return true;
}

bool frmVesk::mnuColorBlind() {
  flgShowColorBlind = !flgShowColorBlind;
  flgShowSuggestions = false;
  flgShowColorsInScreen = false;
  showChosenView();
  return true;
}

void frmVesk::showChosenView() {
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
  if (g) drawCells(*g, suggestionsFor(SelectedColor));
}

// These are still to come; until then each leaves the canvas as the erase has left it.

void frmVesk::drawColorsInScreen(Graphics*) {}

void frmVesk::drawColorBlind(Graphics*) {}

void frmVesk::saveColorsInScreen() {}

}  // namespace tavrelkin
