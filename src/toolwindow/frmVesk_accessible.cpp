// The tool window without a mouse, and without sight.

#include <memory>
#include <utility>

#include "color/ColourWords.h"
#include "color/zrColorLib.h"
#include "runtime/system/System.h"
#include "toolwindow/PreviewGrid.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

namespace {

constexpr auto kScreenView = "Preview";

}  // namespace

// The preview: a picture that tells the colour at its centre, or the cells of the view that it shows.
class frmVesk::PreviewAccessible : public Accessible {
 public:
  explicit PreviewAccessible(frmVesk& window) : window_(window) {}

  AccessibleRole role() const override { return AccessibleRole::picture; }
  String name() const override { return window_.shownView_; }
  // Read where the preview's own marker looks: just inside the centre cell.
  String description() const override {
    if (window_.shownView_ != kScreenView) return {};
    Canvas& canvas = window_.imgScreen;
    const PreviewGrid grid(window_.ScreenZoomValue, canvas.Width, canvas.Height);
    const Color centre = canvas.Graphics().Pixel(grid.markerX() + 1, grid.markerY() + 1);
    return "Center: " + colourInWordsAndNumbers(centre);
  }

  bool canBePressed() const override { return true; }
  void press() override { window_.takeFromScreen(); }

  Int32 cellCount() const override { return static_cast<Int32>(window_.shownCells_.size()); }
  Cell cell(Int32 index) const override {
    const ColourCell& shown = at(index);
    const String label = shown.label.empty() ? "" : shown.label + ": ";
    return {label + colourInWordsAndNumbers(shown.colour), shown.x, shown.y, shown.side, shown.side};
  }
  Int32 currentCell() const override { return window_.markedCell_; }
  void pressCell(Int32 index) override { window_.take(at(index).colour); }

 private:
  const ColourCell& at(Int32 index) const { return window_.shownCells_.at(static_cast<std::size_t>(index)); }

  frmVesk& window_;
};

void frmVesk::nameControls() {
  shownView_ = kScreenView;
  imgScreen.describe(std::make_unique<PreviewAccessible>(*this));
  cmdColor.AccessibleName = "Color";
  imgWebSafe.AccessibleName = "Not web-safe";
  cmdMakeWebSafe.AccessibleName = "Make web-safe";
  DisclosureTriangle1.AccessibleName = "Show controls";
  sm.AccessibleName = "Selected color";
  StaticText2.AccessibleName = "Red, green, blue";
  StaticText3.AccessibleName = "Hue, saturation, luminosity";
  slZoom.AccessibleName = "Zoom";
}

void frmVesk::showsCells(const char* view, std::vector<ColourCell> cells) {
  shownView_ = view;
  shownCells_ = std::move(cells);
  markedCell_ = -1;
  imgScreen.announce(AccessibleChange::cells);
}

void frmVesk::showsScreen() {
  const bool isNew = shownView_ != kScreenView;
  shownView_ = kScreenView;
  shownCells_.clear();
  markedCell_ = -1;
  imgScreen.announce(isNew ? AccessibleChange::cells : AccessibleChange::description);
}

// The label tells the cell's colour, as it does where the pointer rests on it.
void frmVesk::markCell(std::size_t index) {
  Graphics& g = imgScreen.Graphics();
  if (markedCell_ >= 0) eraseMark(g, shownCells_.at(static_cast<std::size_t>(markedCell_)));
  markedCell_ = static_cast<Int32>(index);
  drawMark(g, shownCells_.at(index));
  imgScreen.announce(AccessibleChange::currentCell);
  if (!flgTrackMouse) view0_lblColor.Text = getStdColorString(shownCells_.at(index).colour);
}

bool frmVesk::imgScreen_KeyDown(const String& key) {
  const bool isMarked = markedCell_ >= 0;
  const std::size_t marked = isMarked ? static_cast<std::size_t>(markedCell_) : 0;
  if (isPressKey(key)) {
    if (isMarked) {
      take(shownCells_.at(marked).colour);
    } else {
      takeFromScreen();
    }
    return true;
  }
  const bool isArrow = key == kLeftArrow || key == kRightArrow || key == kUpArrow || key == kDownArrow;
  if (!isArrow || shownCells_.empty()) return false;
  markCell(isMarked ? cellTowards(shownCells_, marked, key) : 0);
  return true;
}

void frmVesk::takeFromScreen() {
  if (requestScreen()) take(System::Pixel(System::MouseX(), System::MouseY()));
}

void frmVesk::take(Color c) {
  leaveColourViews();
  setColor(c, false);
}

}  // namespace tavrelkin
