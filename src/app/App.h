#pragma once

#include "runtime/toolkit/Application.h"

namespace tavrelkin {

// The application object: it opens windows.
class App : public Application {
 public:
  App();

  void AddMenuHandlers() override;
  void MakeDefaultView() override;
  void Event_Open() override;

  // The commands; each reports itself as handled.

  // Opens a tool window with the selected colour of the default one, which is made where there is none.
  bool mnuNewVeskWindow();
  bool mnuAbout();
  // Opens a new palette.
  bool mnuNewColors();
  // Opens the user's favourites from their file; where there is none yet, an empty one is made.
  bool mnuMyFav();
  // Opens a new simulator, at each call another one. A tool window in front has this command to itself.
  bool mnuColorBlind();
  // Brings the default simulator to the front.
  bool mnuColorBlindTool();
};

}  // namespace tavrelkin
