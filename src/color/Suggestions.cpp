#include "color/Suggestions.h"

#include <array>

namespace tavrelkin {

namespace {

// The distance to a neighbouring hue, and a third of the circle. The exact fractions, 1/12 and 1/3, would give other
// colours.
constexpr Double kNeighbour = 0.083;
constexpr Double kThird = 0.333;

struct Hsv {
  Double hue, saturation, value;

  explicit Hsv(Color c) : hue(readColorHue(c)), saturation(readColorSaturation(c)), value(readColorValue(c)) {}
};

// A hue of exactly 0 or 1 stays as it is.
Double wrapped(Double hue) {
  return hue < 0 ? hue + 1 : hue > 1 ? hue - 1 : hue;
}

// The two neighbours of the colour, its complement, the two neighbours of the complement, and two more hues, each a
// third of the circle further. The first of these two starts from a colour that was rounded to bytes, the second from a
// hue that was not.
std::array<Color, 7> relatedTo(Color c) {
  const Hsv from(c);
  const auto at = [&from](Double hue) { return HSV(hue, from.saturation, from.value); };
  const Double opposite = from.hue > 0.5 ? from.hue - 0.5 : from.hue + 0.5;
  const Color beyond = at(wrapped(opposite + kNeighbour));
  const Double onward = wrapped(readColorHue(beyond) + kThird);
  return {at(wrapped(from.hue - kNeighbour)),
          at(wrapped(from.hue + kNeighbour)),
          at(opposite),
          at(wrapped(opposite - kNeighbour)),
          beyond,
          at(onward),
          at(wrapped(onward + kThird))};
}

// The colour itself, two lighter ones, two darker ones, and two that are drawn towards a middle grey.
void appendVariations(std::vector<Color>& list, Color base) {
  const auto [h, s, v] = Hsv(base);
  list.push_back(base);
  list.push_back(HSV(h, s / 2, 1 - (1 - v) / 2));
  list.push_back(HSV(h, s / 4, 1 - (1 - v) / 4));
  list.push_back(HSV(h, 2 * s / 3, 2 * v / 3));
  list.push_back(HSV(h, 2 * s / 3, v / 3));
  list.push_back(HSV(h, s / 2, v - (v - 0.5) / 2));
  list.push_back(HSV(h, s / 4, v - (v - 0.5) / 4));
}

// Appends the colours that `make` returns for `step`, 2 * `step` and so on up to 9 * `step`.
template <class Make>
void appendRamp(std::vector<Color>& list, Double step, Make make) {
  Double sum = step;
  for (int i = 0; i < 9; ++i) {
    list.push_back(make(sum));
    sum += step;
  }
}

}  // namespace

std::vector<Color> suggestionsFor(Color c) {
  std::vector<Color> list;
  for (const Color base : relatedTo(c))
    appendVariations(list, base);
  const Hsv from(c);
  appendRamp(list, 0.1, [&](Double value) { return HSV(from.hue, from.saturation, value); });
  appendRamp(list, 0.1, [&](Double saturation) { return HSV(from.hue, saturation, from.value); });
  appendRamp(list, 25.0, [&](Double red) { return RGB(toInt32(red), c.green(), c.blue()); });
  appendRamp(list, 25.0, [&](Double green) { return RGB(c.red(), toInt32(green), c.blue()); });
  appendRamp(list, 25.0, [&](Double blue) { return RGB(c.red(), c.green(), toInt32(blue)); });
  return list;
}

}  // namespace tavrelkin
