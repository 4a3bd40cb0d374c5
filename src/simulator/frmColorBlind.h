#pragma once

#include <array>
#include <optional>

#include "controls/zrColorBox.h"
#include "runtime/toolkit/Buttons.h"
#include "runtime/toolkit/PopupMenu.h"
#include "runtime/toolkit/Shapes.h"
#include "runtime/toolkit/StaticText.h"
#include "runtime/toolkit/TextField.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

// The simulator: it shows how one colour looks to the three kinds of dichromat on a display of a given gamma, and
// compares one of the three results with the colour itself in a large field. The user drops the colour on the first
// box, or pastes it. A new window has not simulated a colour yet.
class frmColorBlind : public Window {
 public:
  frmColorBlind();

  // The window that is open. Makes and shows one if it has been closed.
  static Ref<frmColorBlind> Default();

  // Part of the class, but neither read nor written: the gamma in force is the text of txtGamma.
  Double gamma = 0;
  // The "Protanopia" result of the last update. The user's own colour is the value of cmdColor[0].
  Color SelectedColor;

  // Runs the simulation of a colour and fills every display; the large field shows "Protanopia" again. If the gamma is
  // 0 or can't be read, a message appears, the field shows 1.80, and this run uses 2.2.
  void SetValue(Color c);

  // Controls. The chosen gamma goes into the field only; the next update takes it from there.
  void cmbGamma_Change();
  // The first box accepts a dropped colour, the results refuse it.
  bool cmdColor_ColorDrop(zrColorBox& box, Color c);
  // Shows a result in the large field.
  void cmdColor_Action(zrColorBox& box);
  void cmdUpdate_Action();

  void AddMenuHandlers() override;
  void Event_Activate() override;

  // The menu command; reports itself as handled.
  bool EditPaste();

  Rectangle Rectangle1{*this, "Rectangle1"};
  PopupMenu cmbGamma{*this, "cmbGamma"};
  StaticText StaticText1{*this, "StaticText1"};
  TextField txtGamma{*this, "txtGamma"};
  // The normal colour, then the three results.
  std::array<zrColorBox, 4> cmdColor{
      {{*this, "cmdColor"}, {*this, "cmdColor"}, {*this, "cmdColor"}, {*this, "cmdColor"}}};
  StaticText StaticText2{*this, "StaticText2"};
  StaticText StaticText3{*this, "StaticText3"};
  // The large field: the chosen result, and on top of it the normal colour.
  std::array<Rectangle, 2> colors{{{*this, "colors"}, {*this, "colors"}}};
  PushButton cmdUpdate{*this, "cmdUpdate"};
  StaticText lblColor{*this, "lblColor"};
  StaticText StaticText5{*this, "StaticText5"};
  StaticText StaticText6{*this, "StaticText6"};
  StaticText StaticText7{*this, "StaticText7"};
  Line Line1{*this, "Line1"};
  StaticText lblRColor{*this, "lblRColor"};

 private:
  void layOut();
  void styleTexts();
  void dress();
  void wire();
  // Sets the accessible names of the controls that show no name.
  void nameControls();

  // The gamma in the field. If it is not usable, shows a message and returns nothing.
  std::optional<Double> chosenGamma();
};

}  // namespace tavrelkin
