#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The channels that a bar can edit, by number: 0 red, 1 green, 2 blue, 3 hue, 4 saturation, 5 value, 6 cyan, 7 magenta,
// 8 yellow. The value of each is 0 to 255. Any other number is no channel: its word is empty, its value is 0, it
// changes nothing, and its ramp is that of channel 0.

// The word that names a channel to the user. Channel 5 is called "Luminosity".
String channelWord(Int32 channel);

// A channel's value in a colour.
Int32 readChannel(Int32 channel, Color c);

// A colour with one channel replaced. Cyan, magenta and yellow are read-only: for them the result is `c`.
Color withChannel(Int32 channel, Color c, Int32 value);

// The ramp of a channel: the colours that a base colour has at each value of it. The base is first converted to three
// bytes in the channel's colour space, so the channels that do not vary are also rounded.
class ChannelRamp {
 public:
  ChannelRamp(Int32 channel, Color base);

  Color at(Int32 value) const;

 private:
  Int32 channel_;
  Int32 parts_[3];
};

}  // namespace tavrelkin
