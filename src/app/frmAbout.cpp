#include "app/frmAbout.h"

#include "runtime/toolkit/Application.h"

namespace tavrelkin {

frmAbout::frmAbout() : Window({.title = "About", .width = 278, .height = 175, .frame = WindowFrame::movableModal}) {
  StaticText1.place(20, 19, 238, 20);
  StaticText1.Text = "Tavrelkin";
  StaticText1.TextAlign = TextAlignment::centred;
  StaticText1.Bold = true;

  StaticText2.place(20, 51, 238, 61);
  StaticText2.Text =
      "Version 3.0 Beta 02\r"
      "The Tavrelkin developers\r"
      "Report faults where you got the program";
  StaticText2.TextAlign = TextAlignment::centred;

  PushButton1.place(99, 124, 80, 20);
  PushButton1.Caption = "OK";
  PushButton1.TabStop = true;
  PushButton1.Action = [this] { PushButton1_Action(); };
}

Ref<frmAbout> frmAbout::Default() {
  return Application::current().defaultWindowOrNew<frmAbout>();
}

void frmAbout::PushButton1_Action() {
  Close();
}

}  // namespace tavrelkin
