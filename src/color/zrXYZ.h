#pragma once

#include <array>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

// One colour as tristimulus values, and how it looks to a person who lacks one of the three kinds of cone. An object is
// made for one update or one paint and costs a few calls of Pow. To work at another gamma than 2.2, write `gamma` and
// call XYZFromRGB again.
//
// The colours that a dichromat can't tell apart lie on a line of the chromaticity diagram, and all these lines meet in
// one point. Of its line a colour becomes that on the axis of the colours that remain, as bright as before; and this is
// drawn towards white by as much as brings a channel to the edge of what the display shows.
//
// A deficiency is an index: 0 "Protanopia", 1 "Deutanopia", 2 "Tritanopia". It selects the entry of each table below.
// Nothing here checks its numbers. Infinities and what is no number go through, and end in channels of 0 to 255.
class zrXYZ {
 public:
  // Takes the colour at a gamma of 2.2.
  explicit zrXYZ(Color c);
  zrXYZ(const zrXYZ&) = default;
  zrXYZ& operator=(const zrXYZ&) = default;
  virtual ~zrXYZ() = default;

  // Gives the whole parts of linear red, green and blue, which are 0, 1 or 2 for a colour of the display. Not for the
  // screen.
  virtual Color getRGBColor() const;
  // Sets `gamma` to 2.2 and fills the tables of the deficiencies. The tristimulus values stay.
  virtual void initClass();
  // How the colour that the object holds looks to a dichromat, encoded with `gamma`. The argument c is not looked at.
  // Changes nothing. Throws OutOfBoundsException unless index is 0, 1 or 2.
  virtual Color getDichromatTranformation(Int32 index, Color c) const;
  // The colour of any tristimulus values, without gamma: linear red, green and blue times 255, fractions dropped.
  virtual Color RGBFromXYZ(Double fromX, Double fromY, Double fromZ) const;
  // Writes linear red, green and blue of any tristimulus values. They may be negative or above 1.
  virtual void RGB2FromXYZ(Double fromX, Double fromY, Double fromZ, Double& r, Double& g, Double& b) const;
  // Takes the colour into `x`, `y` and `z`, its channels expanded with `gamma`.
  virtual void XYZFromRGB(Color c);

  // The tristimulus values. White has a `y` of 1.
  Double x = 0;
  Double y = 0;
  Double z = 0;

  // Where the lines of confusion meet: u and v, which are the x and y of the CIE diagram of 1931, here and below.
  std::array<std::array<Double, 2>, 3> confusionPoints{};

  // Part of the class, but neither filled nor read: the conversions have their factors written into them.
  std::array<std::array<Double, 3>, 3> XYZtoRGBMatrix{};
  std::array<std::array<Double, 3>, 3> RGBtoXYZMatrix{};

  // The axis of the colours that remain, from its beginning (B) to its end (E).
  std::array<Double, 3> ColorAxesEU{};
  std::array<Double, 3> ColorAxesEV{};
  std::array<Double, 3> ColorAxesBV{};
  std::array<Double, 3> ColorAxesBU{};
  // Neither filled nor read.
  std::array<Double, 3> ColorAxesSlope{};

  // The exponent of the display's transfer curve. Writing it leaves `x`, `y` and `z` as they are.
  Double gamma = 0;
};

}  // namespace tavrelkin
