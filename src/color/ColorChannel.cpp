#include "color/ColorChannel.h"

#include <array>
#include <cstddef>

namespace tavrelkin {

namespace {

// A colour space: how a colour comes apart into three bytes, and how three bytes make a colour.
struct Space {
  Int32 (*read[3])(Color);
  Color (*make)(const Int32 (&parts)[3]);
};

template <Double (*reader)(Color)>
Int32 asByte(Color c) {
  return toInt32(255.0 * reader(c));
}

template <Color (*maker)(Double, Double, Double)>
Color fromBytes(const Int32 (&parts)[3]) {
  return maker(parts[0] / 255.0, parts[1] / 255.0, parts[2] / 255.0);
}

constexpr std::array kSpaces{
    Space{{[](Color c) { return c.red(); }, [](Color c) { return c.green(); }, [](Color c) { return c.blue(); }},
          [](const Int32 (&parts)[3]) { return RGB(parts[0], parts[1], parts[2]); }},
    Space{{asByte<readColorHue>, asByte<readColorSaturation>, asByte<readColorValue>}, fromBytes<HSV>},
    Space{{asByte<readColorCyan>, asByte<readColorMagenta>, asByte<readColorYellow>}, fromBytes<CMY>},
};

constexpr std::array kWords{"Red", "Green", "Blue", "Hue", "Saturation", "Luminosity", "Cyan", "Magenta", "Yellow"};

bool isChannel(Int32 channel) {
  return channel >= 0 && channel < static_cast<Int32>(kWords.size());
}

const Space& spaceOf(Int32 channel) {
  return kSpaces[static_cast<std::size_t>(channel / 3)];
}

}  // namespace

String channelWord(Int32 channel) {
  return isChannel(channel) ? kWords[static_cast<std::size_t>(channel)] : "";
}

Int32 readChannel(Int32 channel, Color c) {
  return isChannel(channel) ? spaceOf(channel).read[channel % 3](c) : 0;
}

// The parts that stay are read as fractions here, not through bytes as in the ramp.
Color withChannel(Int32 channel, Color c, Int32 value) {
  const Double share = value / 255.0;
  switch (channel) {
    case 0:
      return RGB(value, c.green(), c.blue());
    case 1:
      return RGB(c.red(), value, c.blue());
    case 2:
      return RGB(c.red(), c.green(), value);
    case 3:
      return HSV(share, readColorSaturation(c), readColorValue(c));
    case 4:
      return HSV(readColorHue(c), share, readColorValue(c));
    case 5:
      return HSV(readColorHue(c), readColorSaturation(c), share);
    default:
      return c;
  }
}

ChannelRamp::ChannelRamp(Int32 channel, Color base) : channel_(isChannel(channel) ? channel : 0) {
  for (int i = 0; i < 3; ++i)
    parts_[i] = spaceOf(channel_).read[i](base);
}

Color ChannelRamp::at(Int32 value) const {
  Int32 parts[3] = {parts_[0], parts_[1], parts_[2]};
  parts[channel_ % 3] = value;
  return spaceOf(channel_).make(parts);
}

}  // namespace tavrelkin
