#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Graphics;
class Picture;

// A small image: a table of at most 256 colours, and for each pixel the index of its colour. One colour may stand for
// transparency. It is made from a picture or read from a text, then drawn any number of times. Nothing is reset when it
// is filled anew: `hexadecimal`, `MaskColorIdx` and the first colour carry over, so an image has an object of its own.
//
// As a text it can stand in the program as a string constant: a form letter, then numbers, one behind the other.
//   form          "H": each number is two upper-case hexadecimal digits; "D": each number is one byte
//   version, width, height, depth, colorCount
//   the colours   red, green and blue of each, from index 0 to colorCount inclusive
//   mask index
//   the pixels    width times height indexes, row by row from the top, each row from left to right
// A text of the form "D" holds zero bytes and is no UTF-8: positions in a text are those of bytes.
class zrPixMap : public Object {
 public:
  // The highest index of `colors`, which is one less than their number.
  Int32 colorCount = 0;
  std::vector<Color> colors{kBlack};
  // In pixels, 0 to 255.
  Int32 width = 0;
  Int32 height = 0;
  // The indexes, encoded as the text has them. What is missing counts as 0.
  String pixmap;
  // The transparent colour, as the last drawing found it at MaskColorIdx.
  Color MaskColor;
  Int32 MaskColorIdx = 0;
  // Bits per pixel of the pictures made from the image; 32 where MaskColorIdx is not 0.
  Int32 depth = 0;
  Int32 version = 0;
  // Whether numbers are two hexadecimal digits, in `pixmap` and in the texts read and written, or else one byte.
  bool hexadecimal = false;

  // Takes over a picture's pixels, with white for those that its mask hides. The table begins with the first colour
  // that there was, black in a new object, and with white; the others follow as they appear, row by row. Those that
  // don't fit become index 0. A nil picture, or one of more than 255 pixels in a direction, is refused with a message.
  virtual void CreateFromPicture(const Ref<Picture>& pic);

  // The index of the first entry of that colour, which is added if it is missing; 0 if the table is full.
  virtual Int32 GetColorIdx(Color c);

  // Draws the image with its top left corner at (x, y). Pixels of the mask's colour are left out, unless that is black.
  virtual void DrawPixMap(Graphics* g, Int32 x, Int32 y);

  // The colour at an index, black where it is below 0 or above colorCount.
  virtual Color GetColor(Int32 index) const;

  // Makes a colour the transparent one, and adds it to the table where it isn't there.
  virtual void setMaskColor(Color c);

  // The image as text, in the form that `hexadecimal` says. The pixels go into it as they are.
  virtual String getPixMapData() const;

  // Reads a text. The form "H" sets `hexadecimal`; "D" leaves it as it is, and so does a text without a form letter.
  // Another version is refused with a message; nothing else is checked, and what is missing counts as 0.
  virtual void CreateFromPixMapData(std::string_view s);

  // A new picture of the image, white where it is transparent. Where there can't be one it is nil, with a message.
  virtual Ref<Picture> GetPicture();

  // A number in the present form, and as two hexadecimal digits, or more where it is above 255.
  virtual String int_ENC(Int32 n) const;
  virtual String int_Hex(Int32 n) const;

  // The same picture with a mask, without a message.
  virtual Ref<Picture> GetPicture32();

  // Draws the image's mask: white for pixels of the mask's colour, also where that is black, and black for all others.
  virtual void DrawPixMapMask(Graphics* g, Int32 x, Int32 y);

 protected:
  // Takes in a text, less its form letter, which is of either case.
  virtual void int_pixBuffeLoad(std::string_view s);
  virtual Color int_pixBufferGetColor();
  // All that remains.
  virtual String int_pixBufferGetPixMap() const;
  virtual Int32 int_pixBufferGetInteger();

  // The text being read, and the position of its next number, from 1.
  String int_pixmapBuffer;
  Int32 int_pixmapBufferPointer = 0;

 private:
  // The entry itself, which must exist; throws OutOfBoundsException.
  Color entry(Int32 index) const;

  void takePixels(const Picture& from);
  Ref<Picture> newPicture();

  // Draws for each pixel what `ink` makes of its colour, or nothing.
  void paint(Graphics& g, Int32 x, Int32 y, const std::function<std::optional<Color>(Color)>& ink) const;

  // The number at a position of a text, 0 past the end, and how many bytes each number has.
  Int32 numberAt(std::string_view text, Int32 position) const;
  Int32 numberSize() const { return hexadecimal ? 2 : 1; }
};

}  // namespace tavrelkin
