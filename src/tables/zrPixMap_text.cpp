// The text form of a pixel map, written and read.

#include "runtime/core/system/Dialogs.h"
#include "tables/zrPixMap.h"

namespace tavrelkin {

String zrPixMap::int_ENC(Int32 n) const {
  return hexadecimal ? int_Hex(n) : ChrB(n);
}

String zrPixMap::int_Hex(Int32 n) const {
  const String digits = Hex(n);
  return Len(digits) < 2 ? "0" + digits : digits;
}

String zrPixMap::getPixMapData() const {
  String data = hexadecimal ? "H" : "D";
  for (const Int32 number : {version, width, height, depth, colorCount})
    data += int_ENC(number);
  for (Int32 i = 0; i <= colorCount; ++i) {
    const Color c = entry(i);
    data += int_ENC(c.red()) + int_ENC(c.green()) + int_ENC(c.blue());
  }
  return data + int_ENC(MaskColorIdx) + pixmap;
}

void zrPixMap::CreateFromPixMapData(std::string_view s) {
  int_pixBuffeLoad(s);
  if (int_pixBufferGetInteger() != version) return MsgBox("Incompatible TxPixelMap Version.");
  width = int_pixBufferGetInteger();
  height = int_pixBufferGetInteger();
  depth = int_pixBufferGetInteger();
  colorCount = int_pixBufferGetInteger();
  colors.resize(static_cast<std::size_t>(colorCount) + 1);
  for (Color& c : colors)
    c = int_pixBufferGetColor();
  MaskColorIdx = int_pixBufferGetInteger();
  MaskColor = GetColor(MaskColorIdx);
  pixmap = int_pixBufferGetPixMap();
}

void zrPixMap::int_pixBuffeLoad(std::string_view s) {
  const String form = Left(s, 1);
  const bool digits = sameText(form, "H");
  if (digits) hexadecimal = true;
  int_pixmapBuffer = MidB(s, digits || sameText(form, "D") ? 2 : 1);
  int_pixmapBufferPointer = 1;
}

Int32 zrPixMap::numberAt(std::string_view text, Int32 position) const {
  const String number = MidB(text, position, numberSize());
  return hexadecimal ? toInt32(Val("&h" + number)) : AscB(number);
}

Int32 zrPixMap::int_pixBufferGetInteger() {
  const Int32 number = numberAt(int_pixmapBuffer, int_pixmapBufferPointer);
  int_pixmapBufferPointer += numberSize();
  return number;
}

Color zrPixMap::int_pixBufferGetColor() {
  const Int32 red = int_pixBufferGetInteger();
  const Int32 green = int_pixBufferGetInteger();
  const Int32 blue = int_pixBufferGetInteger();
  return RGB(red, green, blue);
}

String zrPixMap::int_pixBufferGetPixMap() const {
  return MidB(int_pixmapBuffer, int_pixmapBufferPointer);
}

}  // namespace tavrelkin
