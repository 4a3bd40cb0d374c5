#pragma once

#include <cstddef>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

class FolderItem;

// A palette: a table of colours that begins with 256 white ones. No entry is ever missing; a free one is white, and so
// is one whose colour was removed. A cursor, shared by Add and NextColor, fills the table or walks it from index 0 on.
//
// `Count` is the table's upper bound, not a number of colours: indexes 0 to Count are valid. A Count below 0 stands for
// an empty table. What an operation refuses, it refuses in silence.
class zrClut : public Object {
 public:
  zrClut();

  // The entries.
  std::vector<Color> aColors;
  // The upper bound of aColors. Nobody but the table changes it.
  Int32 Count = 255;
  // The cursor: the index last added or given, -1 before the first. It may pass Count and go on.
  Int32 Index = -1;

  // Moves the cursor on, and puts a colour there unless that is above Count.
  virtual void Add(Color c);

  // Makes an entry white; nothing moves. An index outside 0 to 255 is ignored, one above Count otherwise throws
  // OutOfBoundsException, and an empty table ignores all.
  virtual void Remove(Int32 i);

  // The colour at an index, black outside 0 to Count.
  virtual Color getColor(Int32 i) const;

  // Replaces an entry, with the same bounds as Remove: an entry above 255 can't be set.
  virtual void SetColor(Color c, Int32 i);

  // Puts the cursor before the first entry.
  virtual void Reset();

  // Moves the cursor on and gives the colour there. Black, and the cursor stays, if it would pass 255; throws
  // OutOfBoundsException if it passes a smaller Count.
  virtual Color NextColor();

  // Makes the table as new: 256 white entries.
  virtual void Clear();

  // The files. All give false for a nil item and, after a message, where the file can't be opened or made; the readers
  // also, without a message, where there is none. A file with too few bytes is no failure.
  //
  // A colour table (.act) is 256 times red, green and blue, a byte each, and nothing else: entries that are missing are
  // written black. The reader stops after 255 colours, so that the last entry keeps its own.
  virtual bool WriteClut(const Ref<FolderItem>& file) const;

  // A swatch file (.aco) as version 1 of the format has it: the numbers 1 and Count + 1, then each colour as a space (0
  // for RGB), three channels and a 0, all of two bytes. Of that the reader looks at the number of colours and at the
  // high bytes of the channels. It takes the number for Count, as it is: the table has one entry more than the file,
  // which keeps its colour or, if it is new, is black. A number of 0x8000 or more is negative.
  virtual bool ReadSwatch(const Ref<FolderItem>& file);
  virtual bool ReadClut(const Ref<FolderItem>& file);
  virtual bool writeSwatch(const Ref<FolderItem>& file) const;

 private:
  // The place of an entry, which must exist; throws OutOfBoundsException.
  std::size_t place(Int32 i) const;

  // Gives the table another upper bound and puts the cursor before it. Entries stay, new ones are black.
  void resize(Int32 upperBound);
};

}  // namespace tavrelkin
