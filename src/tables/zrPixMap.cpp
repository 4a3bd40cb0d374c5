#include "tables/zrPixMap.h"

#include <limits>

#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/Picture.h"
#include "runtime/core/system/Dialogs.h"

namespace tavrelkin {

namespace {

// Numbers of the text form are single bytes.
constexpr Int32 kLargestSize = 255;
constexpr Int32 kLargestIndex = 255;

constexpr const char* kCantCreate = "Unable to create pixmap";
constexpr const char* kCantDraw = "Unable to draw pixmap";

}  // namespace

void zrPixMap::CreateFromPicture(const Ref<Picture>& pic) {
  if (!pic) return MsgBox(kCantCreate);
  if (pic->Width() > kLargestSize || pic->Height() > kLargestSize) {
    return MsgBox("Unable to create pixmap image is to large");
  }
  depth = MaskColorIdx != 0 ? 32 : pic->Depth();
  const Ref<Picture> copy = NewPicture(pic->Width(), pic->Height(), 32);
  if (!copy) return MsgBox(kCantCreate);
  copy->Graphics().DrawPicture(*pic, 0, 0);
  width = copy->Width();
  height = copy->Height();
  colors.resize(2);
  colors[1] = kWhite;
  colorCount = 1;
  takePixels(*copy);
}

void zrPixMap::takePixels(const Picture& from) {
  const RGBSurface pixels = from.RGBSurface();
  pixmap.clear();
  for (Int32 y = 0; y < height; ++y) {
    for (Int32 x = 0; x < width; ++x) {
      pixmap += int_ENC(GetColorIdx(pixels.Pixel(x, y)));
      RuntimeBackgroundTask();
    }
    RuntimeBackgroundTask();
  }
}

Color zrPixMap::entry(Int32 index) const {
  const auto i = static_cast<std::size_t>(index);
  if (index < 0 || i >= colors.size()) throw OutOfBoundsException();
  return colors[i];
}

Color zrPixMap::GetColor(Int32 index) const {
  return index >= 0 && index <= colorCount ? entry(index) : kBlack;
}

Int32 zrPixMap::GetColorIdx(Color c) {
  for (Int32 i = 0; i <= colorCount; ++i) {
    RuntimeBackgroundTask();
    if (entry(i) == c) return i;
  }
  if (colorCount == kLargestIndex) return 0;
  colors.push_back(c);
  return ++colorCount;
}

void zrPixMap::setMaskColor(Color c) {
  MaskColor = c;
  MaskColorIdx = GetColorIdx(c);
}

void zrPixMap::paint(Graphics& g, Int32 x, Int32 y, const std::function<std::optional<Color>(Color)>& ink) const {
  // A coordinate that doesn't fit an Int32 is outside of any surface.
  const auto fits = [](Int32 start, Int32 offset) { return start <= std::numeric_limits<Int32>::max() - offset; };
  Int32 position = 1;
  for (Int32 row = 0; row < height; ++row) {
    for (Int32 column = 0; column < width; ++column) {
      const std::optional<Color> c = ink(GetColor(numberAt(pixmap, position)));
      if (c && fits(x, column) && fits(y, row)) g.Pixel(x + column, y + row, *c);
      position += numberSize();
      RuntimeBackgroundTask();
    }
    RuntimeBackgroundTask();
  }
}

void zrPixMap::DrawPixMap(Graphics* g, Int32 x, Int32 y) {
  if (!g) return MsgBox(kCantDraw);
  MaskColor = GetColor(MaskColorIdx);
  paint(*g, x, y, [this](Color c) {
    const bool masked = MaskColor != kBlack && c == MaskColor;
    return masked ? std::nullopt : std::optional(c);
  });
}

void zrPixMap::DrawPixMapMask(Graphics* g, Int32 x, Int32 y) {
  if (!g) return MsgBox(kCantDraw);
  MaskColor = GetColor(MaskColorIdx);
  paint(*g, x, y, [this](Color c) { return c == MaskColor ? kWhite : kBlack; });
}

Ref<Picture> zrPixMap::newPicture() {
  if (MaskColorIdx != 0) depth = 32;
  return NewPicture(width, height, depth);
}

Ref<Picture> zrPixMap::GetPicture() {
  Ref<Picture> p = newPicture();
  if (!p) {
    MsgBox("Unable to create picture from Pixmap");
    return nullptr;
  }
  DrawPixMap(&p->Graphics(), 0, 0);
  return p;
}

Ref<Picture> zrPixMap::GetPicture32() {
  Ref<Picture> p = newPicture();
  if (!p) return nullptr;
  DrawPixMap(&p->Graphics(), 0, 0);
  DrawPixMapMask(&p->Mask(true)->Graphics(), 0, 0);
  return p;
}

String zrPixMap::int_ENC(Int32 n) const {
  return hexadecimal ? int_Hex(n) : ChrB(n);
}

String zrPixMap::int_Hex(Int32 n) const {
  return HexPair(n);
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
