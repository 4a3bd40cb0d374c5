#include "toolwindow/frmVesk.h"

#include <initializer_list>

#include "menubar/MenuBar1.h"
#include "runtime/toolkit/Application.h"
#include "tables/zrPixMap.h"
#include "toolwindow/WebSafeBadge.h"

namespace tavrelkin {

namespace {

constexpr Int32 kFoldedHeight = 262;
constexpr Int32 kUnfoldedHeight = 400;
constexpr Color kStartColor{0x70ABFF};

}  // namespace

frmVesk::frmVesk() : Window({.title = "Vesk", .width = 448, .height = kUnfoldedHeight}) {
  BackColor = Color{0xCCCCCC};
  layOut();
  orderTabs();
  dress();
  styleTexts();
  wire();
  nameControls();
  MenuBar = MenuBar1::Instance();
}

Ref<frmVesk> frmVesk::Default() {
  return Application::current().defaultWindowOrNew<frmVesk>();
}

void frmVesk::layOut() {
  struct Place {
    RectControl& control;
    Int32 left, top, width, height;
  };
  const Place places[] = {
      {cmdColor, 20, 6, 106, 20},
      {imgWebSafe, 134, 8, 13, 13},
      {cmdMakeWebSafe, 153, 8, 13, 13},
      {imgScreen, 20, 33, 408, 192},
      {DisclosureTriangle1, 20, 232, 18, 18},
      {view0_lblcoordinates, 50, 230, 122, 20},
      {view0_lblColor, 198, 231, 230, 20},
      {sm, 45, 266, 60, 60},
      {StaticText2, 142, 270, 12, 74},
      {StaticText3, 291, 270, 12, 72},
      {cmdMixer[0], 158, 267, 121, 20},
      {cmdMixer[1], 158, 293, 121, 20},
      {cmdMixer[2], 158, 319, 121, 20},
      {cmdMixer[3], 307, 267, 121, 20},
      {cmdMixer[4], 307, 293, 121, 20},
      {cmdMixer[5], 307, 319, 121, 20},
      {StaticText1, 20, 347, 37, 20},
      {slZoom, 60, 351, 66, 16},
      {rTIP, 158, 343, 270, 22},
      {rLblTip, 163, 343, 257, 17},
  };
  for (const Place& at : places)
    at.control.place(at.left, at.top, at.width, at.height);
}

void frmVesk::orderTabs() {
  for (RectControl* control :
       std::initializer_list<RectControl*>{&cmdColor, &imgScreen, &DisclosureTriangle1, &slZoom, &cmdMakeWebSafe})
    control->TabStop = true;
  for (zrColorCHBar& bar : cmdMixer)
    bar.TabStop = true;
  setTabOrder({&cmdColor, &imgScreen, &view0_lblcoordinates, &view0_lblColor, &imgWebSafe, &DisclosureTriangle1,
               &slZoom, &StaticText1, &StaticText2, &StaticText3, &cmdMixer[4], &cmdMixer[5], &cmdMixer[2],
               &cmdMixer[1], &cmdMixer[0], &cmdMixer[3], &sm, &cmdMakeWebSafe});
}

void frmVesk::dress() {
  imgWebSafe.HelpTag = "This color is not Web Safe...";
  cmdMakeWebSafe.HelpTag = "Make Web Safe...\rClick here to use a web safe variation of this color";
  cmdMakeWebSafe.Visible = false;
  sm.HelpTag = "Analogus";
  for (zrColorCHBar& bar : cmdMixer)
    bar.propColorChannel = bar.Index;

  imgScreen.FollowsScreen = true;

  slZoom.Minimum = 1;
  slZoom.Maximum = 3;
  slZoom.Value = 1;
  slZoom.PageStep = 1;
  slZoom.LiveScroll = false;

  rTIP.Visible = false;
  rTIP.FillColor = Color{0xFFF8CE};
  rTIP.TopLeftColor = Color{0xB4B094};
  rTIP.BottomRightColor = Color{0x949494};
}

void frmVesk::styleTexts() {
  struct Style {
    StaticText& label;
    const char* text;
    const char* font;
    Int32 size;
  };
  const Style styles[] = {
      {view0_lblcoordinates, "{0, 0}", "System", 11},
      {view0_lblColor, ".", "System", 11},
      {StaticText1, "Zoom", "System", 10},
      {StaticText2, "R:\r\rG:\r\rB:", "Arial", 11},
      {StaticText3, "H:\r\rS:\r\rV:", "Arial", 11},
      {rLblTip, "00000000", "System", 10},
  };
  for (const Style& style : styles) {
    style.label.TextFont = style.font;
    style.label.TextSize = style.size;
    style.label.Text = style.text;
  }
  view0_lblColor.TextAlign = TextAlignment::right;
  StaticText1.Bold = true;
  StaticText2.TextColor = Color{0x333333};
  StaticText3.TextColor = Color{0x333333};
}

void frmVesk::wire() {
  cmdColor.BeforeSelectColor = [this] { return cmdColor_BeforeSelectColor(); };
  cmdColor.ShowCMM = [this] { return cmdColor_ShowCMM(); };
  imgWebSafe.Open = [this] { imgWebSafe_Open(); };
  cmdMakeWebSafe.Action = [this] { cmdMakeWebSafe_Action(); };
  imgScreen.MouseDown = [this](Int32 x, Int32 y) { return imgScreen_MouseDown(x, y); };
  imgScreen.MouseDrag = [this](Int32 x, Int32 y) { imgScreen_MouseDrag(x, y); };
  imgScreen.MouseUp = [this](Int32 x, Int32 y) { imgScreen_MouseUp(x, y); };
  imgScreen.MouseMove = [this](Int32 x, Int32 y) { imgScreen_MouseMove(x, y); };
  imgScreen.KeyDown = [this](const String& key) { return imgScreen_KeyDown(key); };
  imgScreen.Paint = [this](Graphics* g) { imgScreen_Paint(g); };
  DisclosureTriangle1.Action = [this] { DisclosureTriangle1_Action(); };
  for (zrColorCHBar& bar : cmdMixer) {
    bar.SetColorChannel = [this, &bar] { return cmdMixer_SetColorChannel(bar); };
    bar.Action = [this, &bar] { cmdMixer_Action(bar); };
    bar.Change = [this, &bar] { cmdMixer_Change(bar); };
    bar.ValueChanging = [this, &bar] { cmdMixer_ValueChanging(bar); };
  }
  slZoom.ValueChanged = [this] { slZoom_ValueChanged(); };
  pokeMouse.RunEvent = [this] { pokeMouse_Run(); };
  rTIP_Timer.Action = [this] { rTIP_Timer_Action(); };
}

void frmVesk::Event_Open() {
  ScreenZoomValue = 1;
  setColor(kStartColor, false);
  zoomImage = NewPicture(imgScreen.Width, imgScreen.Height, 32);
  drawGrid();
  Height = kFoldedHeight;
}

void frmVesk::Event_Minimize() {
  flgTrackMouse = false;
}

void frmVesk::Event_Close() {
  flgTrackMouse = false;
}

void frmVesk::DisclosureTriangle1_Action() {
  DisclosureTriangle1.AccessibleName = DisclosureTriangle1.Value ? "Hide controls" : "Show controls";
  Height = DisclosureTriangle1.Value ? kUnfoldedHeight : kFoldedHeight;
}

void frmVesk::imgWebSafe_Open() {
  const Ref<zrPixMap> badge = New<zrPixMap>();
  imgWebSafe.Visible = false;
  badge->CreateFromPixMapData(kWebSafeBadge);
  imgWebSafe.Backdrop = badge->GetPicture32();
}

}  // namespace tavrelkin
