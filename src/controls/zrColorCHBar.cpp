#include "controls/zrColorCHBar.h"

#include <array>
#include <cstddef>
#include <utility>

namespace tavrelkin {

namespace {

struct Channel {
  const char* word;
  Int32 (*read)(Color);
};

template <Double (*reader)(Color)>
Int32 asByte(Color c) {
  return toInt32(255.0 * reader(c));
}

constexpr std::array kChannels{
    Channel{"Red", [](Color c) { return c.red(); }},
    Channel{"Green", [](Color c) { return c.green(); }},
    Channel{"Blue", [](Color c) { return c.blue(); }},
    Channel{"Hue", asByte<readColorHue>},
    Channel{"Saturation", asByte<readColorSaturation>},
    Channel{"Luminosity", asByte<readColorValue>},
    Channel{"Cyan", asByte<readColorCyan>},
    Channel{"Magenta", asByte<readColorMagenta>},
    Channel{"Yellow", asByte<readColorYellow>},
};

const Channel* channelAt(Int32 number) {
  const auto index = static_cast<std::size_t>(number);
  return index < kChannels.size() ? &kChannels[index] : nullptr;
}

}  // namespace

zrColorCHBar::zrColorCHBar(Window& owner, String name, Int32 index) : Canvas(owner, std::move(name)) {
  Index = index;
}

void zrColorCHBar::Event_Open() {
  Minimum = 0;
  Maximum = 255;
  Value = 0;
  propColorChannel = SetColorChannel();
}

void zrColorCHBar::SetBaseColor(Color c) {
  propBaseColor = c;
  SetValue(channelOf(c));
}

void zrColorCHBar::SetValue(Int32 v) {
  Value = v;
  intSetTooltip();
  Update();
}

Int32 zrColorCHBar::channelOf(Color c) const {
  const Channel* channel = channelAt(propColorChannel);
  return channel ? channel->read(c) : Value;
}

// The help tag: a number for red, green and blue, a percentage of three digits for the others.
void zrColorCHBar::intSetTooltip() {
  const Channel* channel = channelAt(propColorChannel);
  const String word = channel ? channel->word : "";
  HelpTag = word + " " + (propColorChannel <= 2 ? Str(Value) : Format(Value / 255.0 * 100.0, "000"));
}

void zrColorCHBar::Update() {
  auto& g = Graphics();
  g.ForeColor = propBaseColor;
  g.FillRect(0, 0, g.Width(), g.Height());
  g.ForeColor = Color{0x949494};
  g.DrawRect(0, 0, g.Width(), g.Height());
}

void zrColorCHBar::Event_Paint(tavrelkin::Graphics&) {
  Update();
}

}  // namespace tavrelkin
