#pragma once

#include "runtime/toolkit/Buttons.h"
#include "runtime/toolkit/StaticText.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

// The window that says what the program is.
class frmAbout : public Window {
 public:
  frmAbout();

  // The window that is open. Makes and shows one if it has been closed.
  static Ref<frmAbout> Default();

  void PushButton1_Action();

  StaticText StaticText1{*this, "StaticText1"};
  StaticText StaticText2{*this, "StaticText2"};
  PushButton PushButton1{*this, "PushButton1"};
};

}  // namespace tavrelkin
