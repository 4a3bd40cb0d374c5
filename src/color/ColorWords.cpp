#include "color/ColorWords.h"

#include <algorithm>
#include <iterator>

#include "color/zrColorLib.h"

namespace tavrelkin {

namespace {

// A name and the bound that it goes up to, exclusive.
struct Band {
  Double end;
  const char* name;
};

constexpr Band kGrays[] = {{0.06, "black"}, {0.35, "dark gray"}, {0.65, "gray"}, {0.95, "light gray"}, {2, "white"}};

// Degrees; red lies on both sides of 0.
constexpr Band kHues[] = {{16, "red"},      {42, "orange"}, {66, "yellow"}, {82, "yellowish green"},
                          {160, "green"},   {195, "cyan"},  {255, "blue"},  {285, "purple"},
                          {320, "magenta"}, {345, "pink"},  {361, "red"}};

constexpr Band kLightness[] = {{0.12, "very dark "}, {0.34, "dark "}, {0.66, ""}, {0.86, "light "}, {2, "very light "}};

template <std::size_t n>
const char* nameIn(const Band (&bands)[n], Double value) {
  return std::find_if(std::begin(bands), std::end(bands), [value](const Band& band) { return value < band.end; })->name;
}

}  // namespace

// Names a colour by its hue, its lightness (the mean of the strongest and the weakest channel) and its chroma (their
// difference). People see these as light and colourful more than value and saturation: navy has the full saturation of
// blue.
String colorInWords(Color c) {
  const auto [least, most] = std::minmax({c.red(), c.green(), c.blue()});
  const Double lightness = (least + most) / 510.0;
  const Double chroma = (most - least) / 255.0;
  if (chroma < 0.06) return nameIn(kGrays, lightness);
  const Double room = 1 - Abs(2 * lightness - 1);
  const String grayish = chroma < 0.3 * room ? "grayish " : "";
  String hue = nameIn(kHues, readColorHue(c) * 360);
  const bool isDark = lightness < 0.34;
  if (isDark && hue == "orange") return lightness < 0.2 ? "dark brown" : "brown";
  return nameIn(kLightness, lightness) + grayish + hue;
}

String colorInWordsAndNumbers(Color c) {
  return colorInWords(c) + ", " + getDottedAndHexStr(c);
}

}  // namespace tavrelkin
