#pragma once

#include <cstddef>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

class FolderItem;

// A palette: a table of colours. A new table has 256 white entries. A free entry is white, and so is an entry whose
// colour was removed. Add and NextColor share a cursor, which starts before index 0.
//
// `Count` is the upper bound of the table, not the number of colours: indexes 0 to Count are valid. A Count below 0
// means an empty table. An operation that refuses its arguments does nothing and shows no message.
class zrClut : public Object {
 public:
  zrClut();

  // The entries.
  std::vector<Color> aColors;
  // The upper bound of aColors. Only the table changes it.
  Int32 Count = 255;
  // The cursor: the index that Add or NextColor used last, -1 at first. It can go beyond Count.
  Int32 Index = -1;

  // Moves the cursor to the next index, and puts the colour there unless the index is above Count.
  virtual void Add(Color c);

  // Makes an entry white; no other entry moves. Does nothing for an index outside 0 to 255 and for an empty table.
  // Throws OutOfBoundsException for any other index above Count.
  virtual void Remove(Int32 i);

  // The colour at an index, black outside 0 to Count.
  virtual Color getColor(Int32 i) const;

  // Replaces an entry, within the same bounds as Remove: an entry above 255 can't be set.
  virtual void SetColor(Color c, Int32 i);

  // Puts the cursor before the first entry.
  virtual void Reset();

  // Moves the cursor to the next entry and returns its colour. At 255 the cursor stays and the result is black. Throws
  // OutOfBoundsException if the cursor goes beyond a Count below 255.
  virtual Color NextColor();

  // Makes the table as new: 256 white entries.
  virtual void Clear();

  // The files. Each function returns false for a nil item. If the file can't be opened or made, it shows a message and
  // returns false; a reader shows no message if the file does not exist. A file that is too short is no failure.
  //
  // A colour table (.act) holds 256 colours of three bytes: red, green, blue. The writer writes black for missing
  // entries. The reader stops after 255 colours, so the last entry stays as it was.
  virtual bool WriteClut(const Ref<FolderItem>& file) const;

  // A swatch file (.aco) is in version 1 of the format for color swatches that Adobe has published. All numbers have
  // two bytes, the high byte first: the version 1, the number of colours, and for each colour its space (0 for RGB),
  // three channels and a 0.
  //
  // The reader uses only the number of colours and the high bytes of the channels. The number becomes Count, so the
  // table has one entry more than the file; that entry keeps its colour, or is black if it is new. A number from 0x8000
  // counts as negative. The writer writes Count + 1 as the number.
  virtual bool ReadSwatch(const Ref<FolderItem>& file);
  virtual bool ReadClut(const Ref<FolderItem>& file);
  virtual bool writeSwatch(const Ref<FolderItem>& file) const;

 private:
  // The position of an entry in aColors. Throws OutOfBoundsException if the entry does not exist.
  std::size_t place(Int32 i) const;

  // Changes the upper bound of the table, and puts the cursor before the first entry. Old entries stay, new entries are
  // black.
  void resize(Int32 upperBound);
};

}  // namespace tavrelkin
