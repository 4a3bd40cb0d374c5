// A colour as text that the user pastes.

#include <algorithm>

#include "color/zrColorLib.h"
#include "fuzz/support/Target.h"

namespace tavrelkin {
namespace {

bool accepts(const String& text) {
  Color ignored;
  return getColorFromString(text, ignored);
}

bool hasTheFormOfAColor(const String& text) {
  if (std::ranges::count(text, '.') == 2) return true;
  const String trimmed = Trim(text);
  return Len(trimmed) == 7 && trimmed.front() == '#';
}

void checkWritten(Color c) {
  Color again;
  require(getColorFromString("#" + getHexStr(c), again) && again == c, "the hash form is read back");
  require(getColorFromRGB(getRGBStr(c)) == c, "the triple is read back");
  require(getColorFromHex(getHexStr(c)) == c, "the digits are read back");
  for (const String& refused : {getHexStr(c), getRGBStr(c), getStdColorString(c)})
    require(!accepts(refused), "the other forms are refused");
}

void checkRead(const String& text) {
  Color fromBlack = kBlack;
  Color fromWhite = kWhite;
  const bool accepted = getColorFromString(text, fromBlack);
  require(getColorFromString(text, fromWhite) == accepted, "the colour before plays no part");
  require(accepted == hasTheFormOfAColor(text), "the form alone decides");
  if (!accepted) {
    require(fromBlack == kBlack && fromWhite == kWhite, "a refused text leaves the colour alone");
    require(!zrColorLib_IsColorWebSafe(text), "a refused text is not web-safe");
    return;
  }
  require(fromBlack == fromWhite, "an accepted text gives its colour");
  Color padded;
  require(getColorFromString(" \t" + text + "\n", padded) && padded == fromBlack, "blanks around a text are ignored");
  require(zrColorLib_IsColorWebSafe(text) == zrColorLib_IsColorWebSafe(fromBlack), "a text is as safe as its colour");
  checkWritten(fromBlack);
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tavrelkin::String text(data, data + size);
  tavrelkin::checkRead(text);
  tavrelkin::checkWritten(tavrelkin::getColorFromHex(text));
  tavrelkin::checkWritten(tavrelkin::getColorFromRGB(text));
  return 0;
}
