#pragma once

#include "runtime/gui/Application.h"

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
};

}  // namespace tavrelkin
