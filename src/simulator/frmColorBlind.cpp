#include "simulator/frmColorBlind.h"

#include "color/zrColorLib.h"
#include "color/zrXYZ.h"
#include "controls/ColorDrag.h"
#include "menubar/MenuBar1.h"
#include "runtime/core/system/Dialogs.h"
#include "runtime/toolkit/Application.h"

namespace tavrelkin {

namespace {

constexpr Color kRule{0xBFBFBF};

constexpr std::array kGammas{
    "Default Gamma (1.80)", "SGI Gamma (1.70)",      "Mac Gamma (1.80)",
    "Windows Gamma (2.20)", "Unix/X11 Gamma (2.20)", "Next Gamma (2.20)",
};

}  // namespace

frmColorBlind::frmColorBlind()
    : Window({.title = "Color Blind Simulator", .width = 424, .height = 244, .maximizeButton = true}) {
  BackColor = kWhite;
  layOut();
  styleTexts();
  dress();
  wire();
  nameControls();
  MenuBar = MenuBar1::Instance();
}

Ref<frmColorBlind> frmColorBlind::Default() {
  return Application::current().defaultWindowOrNew<frmColorBlind>();
}

void frmColorBlind::layOut() {
  struct Place {
    RectControl& control;
    Int32 left, top, width, height;
  };
  const Place places[] = {
      {Rectangle1, -1, -1, 426, 50},   {cmbGamma, 158, 14, 244, 21},    {StaticText1, 11, 14, 65, 20},
      {txtGamma, 87, 13, 59, 22},      {cmdColor[0], 108, 57, 20, 20},  {cmdColor[1], 124, 116, 20, 20},
      {StaticText2, 11, 57, 85, 20},   {StaticText3, 11, 89, 149, 20},  {colors[0], 187, 116, 212, 74},
      {colors[1], 195, 125, 34, 56},   {cmdUpdate, 320, 209, 80, 20},   {lblColor, 187, 90, 211, 19},
      {StaticText5, 35, 116, 80, 20},  {cmdColor[2], 124, 143, 20, 20}, {StaticText6, 35, 143, 80, 20},
      {cmdColor[3], 124, 170, 20, 20}, {StaticText7, 35, 170, 80, 20},  {lblRColor, 187, 57, 211, 19},
  };
  for (const Place& at : places)
    at.control.place(at.left, at.top, at.width, at.height);
  Line1.setPoints(-1, 81, 430, 81);
}

void frmColorBlind::styleTexts() {
  struct Style {
    StaticText& label;
    const char* text;
    Int32 size;
    bool bold;
    TextAlignment align;
  };
  const Style styles[] = {
      {StaticText1, "Gamma:", 12, false, TextAlignment::right},
      {StaticText2, "Normal Color:", 12, true, TextAlignment::left},
      {StaticText3, "Simulated Colors:", 12, true, TextAlignment::left},
      {lblColor, "-", 10, false, TextAlignment::left},
      {StaticText5, "Protanopia:", 12, false, TextAlignment::right},
      {StaticText6, "Deutanopia:", 12, false, TextAlignment::right},
      {StaticText7, "Tritanopia:", 12, false, TextAlignment::right},
      {lblRColor, "-", 10, false, TextAlignment::left},
  };
  for (const Style& style : styles) {
    style.label.Text = style.text;
    style.label.TextSize = style.size;
    style.label.Bold = style.bold;
    style.label.TextAlign = style.align;
  }
}

void frmColorBlind::dress() {
  Rectangle1.TopLeftColor = kRule;
  Rectangle1.BottomRightColor = kRule;
  Line1.LineColor = kRule;

  for (std::size_t i = 0; i < cmdColor.size(); ++i)
    cmdColor[i].Index = static_cast<Int32>(i);
  colors[1].Index = 1;

  for (const char* row : kGammas)
    cmbGamma.AddRow(row);
  cmbGamma.ListIndex = 0;
  cmbGamma.TabStop = true;
  txtGamma.Text = "1.8";
  cmdColor[0].AcceptFocus = true;
  for (zrColorBox& box : cmdColor)
    box.TabStop = true;
  cmdUpdate.Caption = "Update";
  cmdUpdate.TabStop = true;
}

void frmColorBlind::nameControls() {
  txtGamma.AccessibleName = "Gamma";
  cmdColor[0].AccessibleName = "Normal color";
  cmdColor[1].AccessibleName = "Protanopia";
  cmdColor[2].AccessibleName = "Deutanopia";
  cmdColor[3].AccessibleName = "Tritanopia";
}

void frmColorBlind::wire() {
  cmbGamma.Change = [this] { cmbGamma_Change(); };
  for (zrColorBox& box : cmdColor) {
    box.ColorDrop = [this, &box](Color c) { return cmdColor_ColorDrop(box, c); };
    box.Action = [this, &box] { cmdColor_Action(box); };
  }
  cmdUpdate.Action = [this] { cmdUpdate_Action(); };
}

void frmColorBlind::AddMenuHandlers() {
  addMenuHandler("EditPaste", [this] { return EditPaste(); });
}

void frmColorBlind::Event_Activate() {
  cmdColor[0].SetFocus();
}

void frmColorBlind::SetValue(Color c) {
  zrXYZ model(c);
  if (const auto chosen = chosenGamma()) model.gamma = *chosen;
  model.XYZFromRGB(c);
  const Color protanopia = model.getDichromatTranformation(0, c);
  cmdColor[0].SetValue(c);
  cmdColor[1].SetValue(protanopia);
  cmdColor[2].SetValue(model.getDichromatTranformation(1, c));
  cmdColor[3].SetValue(model.getDichromatTranformation(2, c));
  colors[1].FillColor = c;
  colors[0].FillColor = protanopia;
  SelectedColor = protanopia;
  lblColor.Text = getStdColorString(SelectedColor);
  lblRColor.Text = getStdColorString(c);
}

std::optional<Double> frmColorBlind::chosenGamma() {
  const Double read = Val(txtGamma.Text.get());
  if (read != 0) return read;
  MsgBox("Invalid gamma value. Using default value.");
  cmbGamma.ListIndex = 0;
  txtGamma.Text = "1.80";
  return std::nullopt;
}

void frmColorBlind::cmbGamma_Change() {
  const String fromParenthesis = NthField(cmbGamma.Text(), "(", 2);
  txtGamma.Text = Trim(NthField(fromParenthesis, ")", 1));
}

void frmColorBlind::cmdColor_Action(zrColorBox& box) {
  if (box.Index == 0) return;
  colors[0].FillColor = box.Value;
  lblColor.Text = getStdColorString(colors[0].FillColor);
}

bool frmColorBlind::cmdColor_ColorDrop(zrColorBox& box, Color c) {
  if (box.Index != 0) return false;
  SetValue(c);
  return true;
}

void frmColorBlind::cmdUpdate_Action() {
  SetValue(cmdColor[0].Value);
}

bool frmColorBlind::EditPaste() {
  Color pasted = SelectedColor;
  if (ColorDrag::paste(pasted)) SetValue(pasted);
  return true;
}

}  // namespace tavrelkin
