#include "color/zrColorLib.h"

#include <array>
#include <cstddef>
#include <variant>

namespace tavrelkin {

namespace {

Int32 hexChannel(const String& digits, Int32 start, Int32 length) {
  return toInt32(Val("&h" + Mid(digits, start, length)));
}

Int32 nearestStep(Int32 channel) {
  constexpr std::array<Int32, 6> step = {0, 51, 102, 153, 204, 255};
  for (std::size_t j = 1; j < step.size(); ++j) {
    if (step[j - 1] < channel && channel < step[j]) {
      return step[j] - channel < channel - step[j - 1] ? step[j] : step[j - 1];
    }
  }
  return channel;
}

bool isWebSafe(Color c) {
  const String hex = getHexStr(c);
  for (const Int32 start : {1, 3, 5}) {
    // The search is not aligned to pairs. Values such as 03, which straddle two entries, are meant to be found.
    if (InStr("00336699CCFF", Mid(hex, start, 2)) < 1) return false;
  }
  return true;
}

}  // namespace

void InitializeSupport() {}

String getRGBStr(Color c) {
  return colorDataOf(c);
}

String getDottedStr(Color c) {
  return Str(c.red()) + "." + Str(c.green()) + "." + Str(c.blue());
}

String getDottedAndHexStr(Color c) {
  return getDottedStr(c) + ", #" + getHexStr(c);
}

String getHexStr(Color c) {
  return HexPair(c.red()) + HexPair(c.green()) + HexPair(c.blue());
}

String getStdColorString(Color c) {
  const Int32 hue = toInt32(readColorHue(c) * 360.0);
  const Int32 saturation = toInt32(readColorSaturation(c) * 100.0);
  const Int32 value = toInt32(readColorValue(c) * 100.0);
  return "Color: " + getDottedStr(c) + ", " + Str(hue) + "." + Str(saturation) + "." + Str(value) + ", #" +
         getHexStr(c);
}

Color getColorFromHex(const String& text) {
  const String digits = text.starts_with('#') ? Mid(text, 2) : text;
  const Int32 length = Len(digits);
  if (length != 3 && length != 6) return kBlack;
  const Int32 width = length / 3;
  return RGB(hexChannel(digits, 1, width), hexChannel(digits, 1 + width, width),
             hexChannel(digits, 1 + 2 * width, width));
}

Color getColorFromRGB(const String& text) {
  return colorOfData(text);
}

bool getColorFromString(const String& text, Color& out) {
  const String trimmed = Trim(text);
  if (CountFields(trimmed, ".") == 3) {
    out = getColorFromRGB(trimmed);
    return true;
  }
  if (Len(trimmed) != 7 || !trimmed.starts_with('#')) return false;
  out = getColorFromHex(trimmed);
  return true;
}

Color getColorFromDrop(const Ref<DragItem>& item) {
  if (!item || !item->MacDataAvailable(kColorData)) return kBlack;
  return getColorFromRGB(item->MacData(kColorData));
}

bool getColorFromTextDrop(const Ref<DragItem>& item, Color& out) {
  if (!item || !item->TextAvailable()) return false;
  return getColorFromString(Trim(item->Text()), out);
}

Color zrColorLib_MakeWebSafe(Color c) {
  return RGB(nearestStep(c.red()), nearestStep(c.green()), nearestStep(c.blue()));
}

bool zrColorLib_IsColorWebSafe(const Variant& color) {
  constexpr Int32 kString = 8;
  constexpr Int32 kColor = 16;
  Color tested;
  switch (VarType(color)) {
    case kString:
      return getColorFromString(std::get<String>(color), tested) && isWebSafe(tested);
    case kColor:
      return isWebSafe(std::get<Color>(color));
    default:
      return false;
  }
}

}  // namespace tavrelkin
