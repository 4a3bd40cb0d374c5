#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "controls/zrColorBox.h"
#include "controls/zrColorButton.h"
#include "controls/zrColorCHBar.h"
#include "runtime/core/concurrency/Thread.h"
#include "runtime/core/concurrency/Timer.h"
#include "runtime/core/drawing/Picture.h"
#include "runtime/toolkit/Buttons.h"
#include "runtime/toolkit/Canvas.h"
#include "runtime/toolkit/Shapes.h"
#include "runtime/toolkit/Slider.h"
#include "runtime/toolkit/StaticText.h"
#include "runtime/toolkit/Window.h"
#include "toolwindow/ColorCells.h"

namespace tavrelkin {

// The tool window: it holds one selected colour and shows it as title, text, swatches and on six bars, and it shows an
// enlarged preview of the screen around the pointer. It is either idle or following the pointer.
class frmVesk : public Window {
 public:
  frmVesk();

  // The window that the program opens first. Makes and shows a new one if it has been closed.
  static Ref<frmVesk> Default();

  // The zoom step, 1 to 3. A pixel of the screen is a square cell of 4 * step canvas pixels a side.
  Int32 ScreenZoomValue = 0;
  // The latest sample of the screen, not enlarged. Each sample replaces it; nothing else changes it.
  Ref<Picture> zoomImage;
  Color SelectedColor;
  // Part of the class, but never read nor written.
  bool flgShowCoordinates = false;
  // Whether the window follows the pointer: the condition of the tracking loop.
  bool flgTrackMouse = false;
  // Whether a coordinate of the sample is locked, and the coordinate in screen pixels at which it was last tracked or
  // locked.
  bool flgLockX = false;
  Int32 varLastX = 0;
  bool flgLockY = false;
  Int32 varLastY = 0;
  // Whether the grid lies over the preview.
  bool flgDrawGuide = false;
  // The grid: a picture over the preview, with a mask.
  Ref<Picture> gridImage;
  // Which view the preview shows in place of the screen. At most one is true.
  bool flgShowSuggestions = false;
  bool flgShowColorsInScreen = false;
  bool flgShowColorBlind = false;

  // The handlers of the controls' events.
  bool cmdColor_BeforeSelectColor();
  bool cmdColor_ShowCMM();
  void imgScreen_MouseDrag(Int32 x, Int32 y);
  void imgScreen_MouseUp(Int32 x, Int32 y);
  bool imgScreen_MouseDown(Int32 x, Int32 y);
  void imgScreen_Paint(Graphics* g);
  void imgScreen_MouseMove(Int32 x, Int32 y);
  void imgWebSafe_Open();
  void DisclosureTriangle1_Action();
  void slZoom_ValueChanged();
  void pokeMouse_Run();
  void cmdMixer_Change(zrColorCHBar& bar);
  void cmdMixer_Action(zrColorCHBar& bar);
  Int32 cmdMixer_SetColorChannel(zrColorCHBar& bar);
  void cmdMixer_ValueChanging(zrColorCHBar& bar);
  void rTIP_Timer_Action();
  void cmdMakeWebSafe_Action();

  void AddMenuHandlers() override;
  void Event_Open() override;
  void Event_Minimize() override;
  void Event_Close() override;

  // Menu commands; each reports itself as handled.
  bool mnuFollow();
  bool mnuLockX();
  bool mnuLockY();
  bool mnuLock();
  bool EditCopy();
  bool EditPaste();
  bool mnuEditCopyHex();
  bool mnuPokeColor();
  bool mnuShowGuide();
  bool mnuViewSuggestions();
  bool mnuShowColors();
  bool mnuCloseWin();
  bool mnuFavFromColors();
  bool mnuColorBlind();

  // One step of tracking: labels and preview show the pointer's position, but keep a locked coordinate.
  void doTrackSysCursor();
  // Takes a sample around a screen point and draws it on imgScreen.
  void drawSys(Int32 x, Int32 y);
  // Makes a colour the selected one and updates every control that shows it. The preview stays as it is. `b` is
  // ignored.
  void setColor(Color c, bool b);
  void doSetUpToolScreenPeeker();
  // Makes gridImage for the zoom step.
  void drawGrid();
  void drawSuggestions(Graphics* g);
  // Paints the preview from zoomImage.
  void drawScreen(Graphics* g);
  void drawColorsInScreen(Graphics* g);
  void saveColorsInScreen();
  void drawColorBlind(Graphics* g);

  zrColorButton cmdColor{*this, "cmdColor"};
  Canvas imgWebSafe{*this, "imgWebSafe"};
  zrColorBox cmdMakeWebSafe{*this, "cmdMakeWebSafe"};
  Canvas imgScreen{*this, "imgScreen"};
  DisclosureTriangle DisclosureTriangle1{*this, "DisclosureTriangle1"};
  StaticText view0_lblcoordinates{*this, "view0_lblcoordinates"};
  StaticText view0_lblColor{*this, "view0_lblColor"};
  zrColorBox sm{*this, "sm"};
  StaticText StaticText2{*this, "StaticText2"};
  StaticText StaticText3{*this, "StaticText3"};
  std::array<zrColorCHBar, 6> cmdMixer{{{*this, "cmdMixer", 0},
                                        {*this, "cmdMixer", 1},
                                        {*this, "cmdMixer", 2},
                                        {*this, "cmdMixer", 3},
                                        {*this, "cmdMixer", 4},
                                        {*this, "cmdMixer", 5}}};
  StaticText StaticText1{*this, "StaticText1"};
  Slider slZoom{*this, "slZoom"};
  Rectangle rTIP{*this, "rTIP"};
  StaticText rLblTip{*this, "rLblTip", &rTIP};
  Thread pokeMouse{*this, "pokeMouse"};
  Timer rTIP_Timer{*this, "rTIP_Timer"};

 private:
  class PreviewAccessible;

  // The parts of the constructor: places and sizes, the order of the Tab key, colours and ranges, fonts, the events'
  // handlers, and the names for assistive technologies.
  void layOut();
  void orderTabs();
  void dress();
  void styleTexts();
  void wire();
  void nameControls();

  // The item of that name in the window's menu bar.
  MenuItem& menuItem(const char* name) const;
  // Shows or ends a view, given by its flag. A view that begins ends the other one.
  void toggleView(bool& shown);
  // Ends the views of suggestions and of distinct colours.
  void leaveColorViews();
  // Selects a colour that the user has chosen in the preview, and ends the views it was chosen in.
  void take(Color c);
  // The same for the colour under the pointer.
  void takeFromScreen();
  // Whether the screen can be read now. If not, asks the user for permission, or lets the user pick a colour for this
  // window.
  bool requestScreen();
  void rememberPointer();
  // The colour on the screen under the pointer, which is at (x, y) of the preview. If the screen can't be read, this is
  // the preview's pixel at (x, y), or nothing outside of the preview.
  std::optional<Color> colorUnderPointer(Int32 x, Int32 y);

  // Record what the preview now shows: a view's cells, which keys and assistive technologies can choose, or the screen.
  void showsCells(const char* view, std::vector<ColorCell> cells);
  void showsScreen();
  // Arrow keys mark a cell. Space, Return and Enter take the marked cell's colour or, where no cell is marked, the
  // colour under the pointer.
  bool imgScreen_KeyDown(const String& key);
  void markCell(std::size_t index);

  bool pressTakes_ = true;  // whether the release of the current press takes a colour
  static constexpr auto kScreenView = "Preview";
  String shownView_ = kScreenView;  // what the preview shows, in a word for the user
  std::vector<ColorCell> shownCells_;
  Int32 markedCell_ = -1;  // an index of shownCells_, or -1
};

}  // namespace tavrelkin
