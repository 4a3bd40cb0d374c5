// The preview of the tool window: how the screen is sampled, drawn enlarged, and picked from.

#include "color/zrColorLib.h"
#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/system/System.h"
#include "toolwindow/PreviewGrid.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

namespace {

constexpr Color kGridColor{0xCECECE};
constexpr Color kMarkerOnDark{0xF97324};

// Reads the pixel just inside the centre cell, beyond any grid line.
Color markerColorOver(const Graphics& g, const PreviewGrid& grid) {
  const Color centre = g.Pixel(grid.markerX() + 1, grid.markerY() + 1);
  return readColorValue(centre) < 0.5 ? kMarkerOnDark : kBlack;
}

}  // namespace

void frmVesk::doTrackSysCursor() {
  const Int32 x = flgLockX ? varLastX : System::MouseX();
  const Int32 y = flgLockY ? varLastY : System::MouseY();
  view0_lblColor.Text = getStdColorString(System::Pixel(x, y));
  view0_lblcoordinates.Text = "{" + Str(x) + ", " + Str(y) + "}";
  drawSys(x, y);
  varLastX = x;
  varLastY = y;
}

// Each pixel goes to the picture that zoomImage then is. If a second sample begins in the middle of this one, both
// write to the newer picture, and the next step corrects it.
void frmVesk::drawSys(Int32 x, Int32 y) {
  const PreviewGrid grid(ScreenZoomValue, imgScreen.Width, imgScreen.Height);
  zoomImage = NewPicture(grid.columns + 1, grid.rows + 1, 32);
  zoomImage->Graphics().UseOldRenderer = true;
  Int32 i = 0;
  for (Int32 cx = x - grid.reachX(); cx <= x + grid.reachX(); ++cx) {
    Int32 j = 0;
    for (Int32 cy = y - grid.reachY(); cy <= y + grid.reachY(); ++cy) {
      zoomImage->Graphics().Pixel(i, j, System::Pixel(cx, cy));
      ++j;
      RuntimeBackgroundTask();
    }
    ++i;
    RuntimeBackgroundTask();
  }

  Graphics& g = imgScreen.Graphics();
  g.UseOldRenderer = true;
  g.DrawPicture(*zoomImage, 0, 0, grid.width(), grid.height(), 0, 0, grid.columns, grid.rows);
  if (flgDrawGuide && gridImage) g.DrawPicture(*gridImage, 0, 0);
  g.ForeColor = markerColorOver(g, grid);
  g.DrawRect(grid.markerX(), grid.markerY(), grid.cell + 1, grid.cell + 1);
  g.ForeColor = kWhite;
  g.DrawRect(0, 0, grid.width(), grid.height());
  showsScreen();
}

void frmVesk::drawScreen(Graphics* g) {
  if (!g) return;
  g->ForeColor = kWhite;
  g->FillRect(0, 0, g->Width(), g->Height());
  const PreviewGrid grid(ScreenZoomValue, g->Width(), g->Height());
  g->UseOldRenderer = true;
  if (zoomImage) {
    g->DrawPicture(*zoomImage, 0, 0, g->Width(), g->Height(), 0, 0, grid.columns, grid.rows);
  }
  if (flgDrawGuide && gridImage) g->DrawPicture(*gridImage, 0, 0);
  g->ForeColor = kBlack;
  g->DrawRect(grid.markerX(), grid.markerY(), grid.cell, grid.cell);
  g->ForeColor = kWhite;
  g->DrawRect(0, 0, g->Width(), g->Height());
  showsScreen();
}

void frmVesk::drawGrid() {
  const Int32 width = imgScreen.Width;
  const Int32 height = imgScreen.Height;
  const Int32 cell = PreviewGrid(ScreenZoomValue, width, height).cell;
  gridImage = NewPicture(width + 1, height + 1, 32);
  Graphics& lines = gridImage->Graphics();
  lines.UseOldRenderer = true;
  lines.ForeColor = kGridColor;
  Graphics& mask = gridImage->Mask(true)->Graphics();
  mask.ForeColor = kWhite;
  mask.FillRect(0, 0, width, height);
  mask.ForeColor = kBlack;
  for (Int32 x = 0; x <= width; x += cell) {
    lines.DrawLine(x, 0, x, height);
    mask.DrawLine(x, 0, x, height);
    RuntimeBackgroundTask();
  }
  for (Int32 y = 0; y <= height; y += cell) {
    lines.DrawLine(0, y, width, y);
    mask.DrawLine(0, y, width, y);
    RuntimeBackgroundTask();
  }
}

void frmVesk::slZoom_ValueChanged() {
  ScreenZoomValue = slZoom.Value;
  drawGrid();
  imgScreen.Refresh(true);
}

// Cells need no screen. Any other press does; if it has to ask for permission first, it takes no colour, and the user
// repeats it.
bool frmVesk::imgScreen_MouseDown(Int32, Int32) {
  pressTakes_ = !shownCells_.empty() || requestScreen();
  return static_cast<bool>(zoomImage);
}

// A drag that has left the preview is an eye-dropper for the whole screen.
void frmVesk::imgScreen_MouseDrag(Int32 x, Int32 y) {
  const bool hasLeft = x < 0 || x > imgScreen.Width || y < 0 || y > imgScreen.Height;
  if (hasLeft && System::CanReadScreen()) doTrackSysCursor();
}

void frmVesk::imgScreen_MouseUp(Int32 x, Int32 y) {
  if (!pressTakes_) return;
  if (const auto under = colorUnderPointer(x, y)) take(*under);
}

void frmVesk::imgScreen_MouseMove(Int32 x, Int32 y) {
  if (flgTrackMouse) return;
  if (const auto under = colorUnderPointer(x, y)) view0_lblColor.Text = getStdColorString(*under);
}

std::optional<Color> frmVesk::colorUnderPointer(Int32 x, Int32 y) {
  if (System::CanReadScreen()) return System::Pixel(System::MouseX(), System::MouseY());
  if (x < 0 || x >= imgScreen.Width || y < 0 || y >= imgScreen.Height) return std::nullopt;
  return imgScreen.Graphics().Pixel(x, y);
}

}  // namespace tavrelkin
