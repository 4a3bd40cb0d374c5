#include "controls/Accessibles.h"

#include <algorithm>

#include "color/ColorChannel.h"
#include "color/ColorWords.h"
#include "controls/ColorSwatch.h"
#include "controls/zrClutPalette.h"
#include "controls/zrColorCHBar.h"

namespace tavrelkin {

namespace {

class BarAccessible : public Accessible {
 public:
  explicit BarAccessible(zrColorCHBar& bar) : bar_(bar) {}

  AccessibleRole role() const override { return AccessibleRole::slider; }
  String name() const override { return channelWord(bar_.propColorChannel); }
  Range range() const override { return {bar_.Value, bar_.Minimum, bar_.Maximum}; }
  void setValue(Int32 value) override { bar_.chooseValue(value); }

 private:
  zrColorCHBar& bar_;
};

class SwatchAccessible : public Accessible {
 public:
  explicit SwatchAccessible(ColorSwatch& swatch) : swatch_(swatch) {}

  AccessibleRole role() const override {
    return swatch_.answersClicks() ? AccessibleRole::button : AccessibleRole::picture;
  }
  String description() const override { return colorInWordsAndNumbers(swatch_.Value); }
  void press() override { swatch_.press(); }

 private:
  ColorSwatch& swatch_;
};

class PaletteAccessible : public Accessible {
 public:
  explicit PaletteAccessible(zrClutPalette& palette) : palette_(palette) {}

  AccessibleRole role() const override { return AccessibleRole::list; }
  Int32 cellCount() const override { return palette_.TheClut ? std::max(palette_.TheClut->Count, 0) : 0; }
  Cell cell(Int32 index) const override {
    const auto [x, y] = palette_.origin(index);
    const Int32 side = palette_.wBox + 2;
    return {colorInWordsAndNumbers(palette_.TheClut->getColor(index)), x, y, side, side};
  }
  Int32 currentCell() const override { return palette_.Selected; }
  void pressCell(Int32 index) override { palette_.choose(index); }

 private:
  zrClutPalette& palette_;
};

}  // namespace

std::unique_ptr<Accessible> accessibleOf(zrColorCHBar& bar) {
  return std::make_unique<BarAccessible>(bar);
}

std::unique_ptr<Accessible> accessibleOf(ColorSwatch& swatch) {
  return std::make_unique<SwatchAccessible>(swatch);
}

std::unique_ptr<Accessible> accessibleOf(zrClutPalette& palette) {
  return std::make_unique<PaletteAccessible>(palette);
}

}  // namespace tavrelkin
