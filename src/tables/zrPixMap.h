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
// transparency. It is made from a picture or read from a text, then drawn any number of times. Filling it again does
// not reset `hexadecimal`, `MaskColorIdx` and the first colour, so use a new object for each image.
//
// Its text form can be a string constant in a program: a form letter, then numbers without separators.
//   form          "H": each number is two upper-case hexadecimal digits; "D": each number is one byte
//   version, width, height, depth, colorCount
//   the colours   red, green and blue of each, from index 0 to colorCount inclusive
//   mask index
//   the pixels    width times height indexes, row by row from the top, each row from left to right
// A text of the form "D" contains zero bytes and is not UTF-8, so positions in a text count bytes.
class zrPixMap : public Object {
 public:
  // The highest index of `colors`, which is one less than their number.
  Int32 colorCount = 0;
  std::vector<Color> colors{kBlack};
  // In pixels, 0 to 255.
  Int32 width = 0;
  Int32 height = 0;
  // The indexes, encoded as in the text. Missing indexes count as 0.
  String pixmap;
  // The transparent colour. Each drawing reads it again from the table at MaskColorIdx.
  Color MaskColor;
  Int32 MaskColorIdx = 0;
  // Bits per pixel of the pictures made from the image; 32 if MaskColorIdx is not 0.
  Int32 depth = 0;
  Int32 version = 0;
  // Whether a number in `pixmap` and in the texts is two hexadecimal digits; otherwise it is one byte.
  bool hexadecimal = false;

  // Copies a picture's pixels; those that its mask hides become white. The table keeps its first colour, which is black
  // in a new object. White follows, then the other colours as they appear, row by row. Pixels whose colour does not fit
  // get index 0. A nil picture, or one more than 255 pixels wide or high, is refused with a message.
  virtual void CreateFromPicture(const Ref<Picture>& pic);

  // The index of the first entry of that colour, which is added if it is missing; 0 if the table is full.
  virtual Int32 GetColorIdx(Color c);

  // Draws the image with its top left corner at (x, y). Pixels of the mask's colour are left out, unless that is black.
  virtual void DrawPixMap(Graphics* g, Int32 x, Int32 y);

  // The colour at an index; black if the index is below 0 or above colorCount.
  virtual Color GetColor(Int32 index) const;

  // Makes a colour the transparent colour, and adds it to the table if it is missing.
  virtual void setMaskColor(Color c);

  // The image as text, in the form that `hexadecimal` selects. It contains `pixmap` unchanged.
  virtual String getPixMapData() const;

  // Reads a text. The form "H" sets `hexadecimal`; "D" leaves it as it is, and so does a text without a form letter. A
  // text of another version is refused with a message. Nothing else is checked, and missing numbers count as 0.
  virtual void CreateFromPixMapData(std::string_view s);

  // A new picture of the image, white where the image is transparent. If it can't be made, shows a message and returns
  // nil.
  virtual Ref<Picture> GetPicture();

  // A number as text: int_ENC uses the form that `hexadecimal` selects; int_Hex uses two hexadecimal digits, or more
  // above 255.
  virtual String int_ENC(Int32 n) const;
  virtual String int_Hex(Int32 n) const;

  // The same picture with a mask. If it can't be made, returns nil without a message.
  virtual Ref<Picture> GetPicture32();

  // Draws the image's mask: white for pixels of the mask's colour, even if that is black, and black for all others.
  virtual void DrawPixMapMask(Graphics* g, Int32 x, Int32 y);

 protected:
  // Stores a text to read, without its form letter, which can be upper or lower case.
  virtual void int_pixBuffeLoad(std::string_view s);
  virtual Color int_pixBufferGetColor();
  // The rest of the text.
  virtual String int_pixBufferGetPixMap() const;
  virtual Int32 int_pixBufferGetInteger();

  // The text being read, and the position of its next number, from 1.
  String int_pixmapBuffer;
  Int32 int_pixmapBufferPointer = 0;

 private:
  // The colour of an entry. Throws OutOfBoundsException if the entry does not exist.
  Color entry(Int32 index) const;

  void takePixels(const Picture& from);
  Ref<Picture> newPicture();

  // Draws each pixel in the colour that `ink` returns for its colour; skips it if `ink` returns nothing.
  void paint(Graphics& g, Int32 x, Int32 y, const std::function<std::optional<Color>(Color)>& ink) const;

  // The number at a position of a text, 0 past the end; and the size of a number in bytes.
  Int32 numberAt(std::string_view text, Int32 position) const;
  Int32 numberSize() const { return hexadecimal ? 2 : 1; }
};

}  // namespace tavrelkin
