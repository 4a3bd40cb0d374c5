// How assistive technologies see the tool window and its preview.

#include <memory>

#include "color/ColorWords.h"
#include "toolwindow/PreviewGrid.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

// The preview: a picture with the colour at its centre as the description, or the cells of the view that it shows.
class frmVesk::PreviewAccessible : public Accessible {
 public:
  explicit PreviewAccessible(frmVesk& window) : window_(window) {}

  AccessibleRole role() const override { return AccessibleRole::picture; }
  String name() const override { return window_.shownView_; }
  // Reads the pixel that also decides the marker's colour: just inside the centre cell.
  String description() const override {
    if (window_.shownView_ != kScreenView) return {};
    Canvas& canvas = window_.imgScreen;
    const PreviewGrid grid(window_.ScreenZoomValue, canvas.Width, canvas.Height);
    const Color centre = canvas.Graphics().Pixel(grid.markerX() + 1, grid.markerY() + 1);
    return "Center: " + colorInWordsAndNumbers(centre);
  }

  bool canBePressed() const override { return true; }
  void press() override { window_.takeFromScreen(); }

  Int32 cellCount() const override { return static_cast<Int32>(window_.shownCells_.size()); }
  Cell cell(Int32 index) const override {
    const ColorCell& shown = at(index);
    const String label = shown.label.empty() ? "" : shown.label + ": ";
    return {label + colorInWordsAndNumbers(shown.color), shown.x, shown.y, shown.side, shown.side};
  }
  Int32 currentCell() const override { return window_.markedCell_; }
  void pressCell(Int32 index) override { window_.take(at(index).color); }

 private:
  const ColorCell& at(Int32 index) const { return window_.shownCells_.at(static_cast<std::size_t>(index)); }

  frmVesk& window_;
};

void frmVesk::nameControls() {
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

}  // namespace tavrelkin
