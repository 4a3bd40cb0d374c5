#pragma once

#include <array>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

// A colour as CIE XYZ tristimulus values, and the colour that a dichromat sees in its place. A dichromat lacks one of
// the three kinds of cone. An object is made for one update or one paint; making it costs a few calls of Pow. To work
// at a gamma other than 2.2, write `gamma` and call XYZFromRGB again.
//
// A dichromat can't tell apart the colours on one line of the chromaticity diagram. All these lines of confusion meet
// in one point. The transformation moves a colour along its line to the axis of the colours that the dichromat sees,
// and keeps its luminance. A result outside the display's range is mixed with white until it is inside.
//
// The points and axes are those of the published copunctal points of protanopes, deuteranopes and tritanopes in the
// CIE 1931 diagram. The matrices are for a display with the EBU primaries and a white of D65.
//
// A deficiency is an index: 0 "Protanopia", 1 "Deutanopia", 2 "Tritanopia". It selects the entry of each table below.
// No function checks its numbers. Infinities and NaN pass through and end as channels from 0 to 255.
class zrXYZ {
 public:
  // Takes the colour at a gamma of 2.2.
  explicit zrXYZ(Color c);
  zrXYZ(const zrXYZ&) = default;
  zrXYZ& operator=(const zrXYZ&) = default;
  virtual ~zrXYZ() = default;

  // The integer parts of linear red, green and blue, which are 0, 1 or 2 for a colour of the display. Of no use as a
  // colour to show.
  virtual Color getRGBColor() const;
  // Sets `gamma` to 2.2 and fills the tables of the deficiencies. The tristimulus values stay.
  virtual void initClass();
  // The colour that a dichromat sees for the colour of this object, encoded with `gamma`. `c` is ignored. The object
  // does not change. Throws OutOfBoundsException unless index is 0, 1 or 2.
  virtual Color getDichromatTranformation(Int32 index, Color c) const;
  // Linear red, green and blue of any tristimulus values, without gamma: times 255, fractions dropped.
  virtual Color RGBFromXYZ(Double fromX, Double fromY, Double fromZ) const;
  // Writes linear red, green and blue of any tristimulus values. They may be negative or above 1.
  virtual void RGB2FromXYZ(Double fromX, Double fromY, Double fromZ, Double& r, Double& g, Double& b) const;
  // Sets `x`, `y` and `z` from a colour, whose channels it expands with `gamma`.
  virtual void XYZFromRGB(Color c);

  // The tristimulus values. White has a `y` of 1.
  Double x = 0;
  Double y = 0;
  Double z = 0;

  // The points where the lines of confusion meet. Here and below, u and v are the x and y of the CIE 1931 diagram.
  std::array<std::array<Double, 2>, 3> confusionPoints{};

  // Part of the class, but never filled nor read: each conversion has its own factors.
  std::array<std::array<Double, 3>, 3> XYZtoRGBMatrix{};
  std::array<std::array<Double, 3>, 3> RGBtoXYZMatrix{};

  // The axis of the colours that a dichromat sees, from its beginning (B) to its end (E).
  std::array<Double, 3> ColorAxesEU{};
  std::array<Double, 3> ColorAxesEV{};
  std::array<Double, 3> ColorAxesBV{};
  std::array<Double, 3> ColorAxesBU{};
  // Never filled nor read.
  std::array<Double, 3> ColorAxesSlope{};

  // The exponent of the display's transfer curve. Writing it leaves `x`, `y` and `z` as they are.
  Double gamma = 0;
};

}  // namespace tavrelkin
