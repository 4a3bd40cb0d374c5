#include <array>
#include <cstddef>
#include <variant>

#include "color/zrColorLib.h"

namespace tavrelkin {

namespace {

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
