// A pixel map as text, in both forms.

#include <algorithm>
#include <set>
#include <string>

#include "fuzz/support/Target.h"
#include "runtime/core/drawing/Picture.h"
#include "tables/zrPixMap.h"

namespace tavrelkin {
namespace {

// A map of two pixels by one, in two colours.
const String kBefore("D\0\2\1\x20\1\xFF\0\0\0\xFF\0\0\1\0", 15);

// The map's text in the form of bytes, except that the pixels stay in their own form.
String fieldsOf(const zrPixMap& map) {
  zrPixMap bytes;
  bytes.width = map.width;
  bytes.height = map.height;
  bytes.depth = map.depth;
  bytes.colorCount = map.colorCount;
  bytes.colors = map.colors;
  bytes.MaskColorIdx = map.MaskColorIdx;
  bytes.pixmap = map.pixmap;
  return bytes.getPixMapData();
}

// Whether the text has a form letter.
bool hasLetter(const String& text) {
  return !text.empty() && String("HhDd").find(text.front()) != String::npos;
}

// The number that a text begins with.
Int32 versionOf(const String& text, bool hexadecimal) {
  const String digits = MidB(text, hasLetter(text) ? 2 : 1, hexadecimal ? 2 : 1);
  return hexadecimal ? toInt32(Val("&h" + digits)) : AscB(digits);
}

void checkFields(const zrPixMap& map, const String& text) {
  const Int32 numbers[] = {map.width, map.height, map.depth, map.colorCount, map.MaskColorIdx};
  require(std::ranges::all_of(numbers, [](Int32 n) { return n >= 0 && n <= 255; }), "a number is a byte");
  require(map.colors.size() == static_cast<std::size_t>(map.colorCount) + 1, "the table is as long as it says");
  require(map.GetColor(map.colorCount) == map.colors.back(), "the last colour is of use");
  require(map.GetColor(-1) == kBlack && map.GetColor(map.colorCount + 1) == kBlack, "it is black around the table");
  require(map.MaskColor == map.GetColor(map.MaskColorIdx), "the mask's colour is that of its index");
  const Int32 letter = hasLetter(text) ? 1 : 0;
  const Int32 count = 5 + 3 * (map.colorCount + 1) + 1;
  require(map.pixmap == MidB(text, letter + count * (map.hexadecimal ? 2 : 1) + 1), "the pixels are what is left");
}

void checkWritten(const zrPixMap& map) {
  const String text = map.getPixMapData();
  zrPixMap again;
  again.CreateFromPixMapData(text);
  require(again.hexadecimal == map.hexadecimal, "a text tells its form");
  require(fieldsOf(again) == fieldsOf(map), "a written map is read back");
  require(again.getPixMapData() == text, "and written the same");
}

// Checks a picture and its mask. The mask is white where the map's mask is white too, and black everywhere if the map
// has no mask.
void checkPixels(const zrPixMap& map, const Picture& picture, const Picture& mask) {
  std::set<std::uint32_t> inks{kBlack.bits};
  for (const Color c : map.colors)
    inks.insert(c.bits);
  const Color hidden = map.MaskColor == kBlack ? kBlack : kWhite;
  for (Int32 y = 0; y < map.height; ++y) {
    for (Int32 x = 0; x < map.width; ++x) {
      const Color ink = picture.RGBSurface().Pixel(x, y);
      const Color cover = mask.RGBSurface().Pixel(x, y);
      require(cover == kBlack || cover == kWhite, "a mask is black or white");
      require(cover == kWhite ? ink == hidden : ink != map.MaskColor && inks.contains(ink.bits),
              "a pixel has a colour of the table");
    }
  }
}

// If only a part of the map is drawn, away from the corner, it must show the same pixels.
void checkClipped(zrPixMap& map, const Picture& picture) {
  constexpr Int32 side = 8;
  const Ref<Picture> paper = NewPicture(side, side, 32);
  map.DrawPixMap(&paper->Graphics(), -3, 2);
  for (Int32 y = 0; y < side; ++y) {
    for (Int32 x = 0; x < side; ++x) {
      const bool covered = x + 3 < map.width && y >= 2 && y - 2 < map.height;
      const Color expected = covered ? picture.RGBSurface().Pixel(x + 3, y - 2) : kWhite;
      require(paper->RGBSurface().Pixel(x, y) == expected, "a map is the same anywhere");
    }
  }
}

void checkPicture(zrPixMap& map) {
  const Ref<Picture> picture = map.GetPicture32();
  require(static_cast<bool>(picture) == (map.width > 0 && map.height > 0), "sizes give a picture");
  if (!picture) return;
  require(picture->Depth() == map.depth && (map.MaskColorIdx == 0 || map.depth == 32), "its depth is the map's");
  checkPixels(map, *picture, *picture->Mask(false));
  checkClipped(map, *picture);
}

void check(const String& text, bool hexadecimal) {
  const FakeDesktop& desktop = freshDesktop();
  zrPixMap map;
  map.CreateFromPixMapData(kBefore);
  const String before = fieldsOf(map);
  map.hexadecimal = hexadecimal;
  map.CreateFromPixMapData(text);
  require(map.hexadecimal == (hexadecimal || text.starts_with('H') || text.starts_with('h')),
          "the letter turns digits on");
  const bool refused = !desktop.messages.empty();
  require(refused == (versionOf(text, map.hexadecimal) != 0), "another version is refused, and nothing else is");
  if (refused) {
    require(fieldsOf(map) == before, "a refused text changes nothing");
    return;
  }
  checkFields(map, text);
  checkWritten(map);
  // The largest maps would take too much time.
  if (map.width * map.height <= 4096) checkPicture(map);
  require(desktop.messages.empty(), "there is nothing more to say");
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tavrelkin::String text(data, data + size);
  tavrelkin::check(text, false);
  tavrelkin::check(text, true);
  return 0;
}
