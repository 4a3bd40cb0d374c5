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

  // Opens a tool window with the selected colour of the default window. Makes a default window if it has been closed.
  bool mnuNewVeskWindow();
  bool mnuAbout();
  // Opens a new palette.
  bool mnuNewColors();
  // Opens the user's favourites from their file. Makes an empty file if it does not exist.
  bool mnuMyFav();
  // Opens another simulator at each call. If a tool window is in front, that window handles the command instead.
  bool mnuColorBlind();
  // Brings the default simulator to the front.
  bool mnuColorBlindTool();
};

}  // namespace tavrelkin
