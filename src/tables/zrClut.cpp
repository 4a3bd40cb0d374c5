#include "tables/zrClut.h"

#include <algorithm>

#include "runtime/core/base/Exceptions.h"

namespace tavrelkin {

namespace {

constexpr Int32 kUpperBound = 255;

}  // namespace

zrClut::zrClut() {
  zrClut::Clear();
}

std::size_t zrClut::place(Int32 i) const {
  const auto at = static_cast<std::size_t>(i);
  if (i < 0 || at >= aColors.size()) throw OutOfBoundsException();
  return at;
}

void zrClut::resize(Int32 upperBound) {
  Count = upperBound;
  Index = -1;
  aColors.resize(upperBound < 0 ? 0 : static_cast<std::size_t>(upperBound) + 1);
}

void zrClut::Clear() {
  resize(kUpperBound);
  std::fill(aColors.begin(), aColors.end(), kWhite);
}

void zrClut::Add(Color c) {
  ++Index;
  if (Index <= Count) aColors[place(Index)] = c;
}

void zrClut::Remove(Int32 i) {
  if (0 <= i && i <= kUpperBound && Count >= 0) aColors[place(i)] = kWhite;
}

Color zrClut::getColor(Int32 i) const {
  if (i < 0 || i > Count) return kBlack;
  return aColors[place(i)];
}

void zrClut::SetColor(Color c, Int32 i) {
  if (0 <= i && i <= kUpperBound && Count >= 0) aColors[place(i)] = c;
}

void zrClut::Reset() {
  Index = -1;
}

Color zrClut::NextColor() {
  if (Index + 1 > kUpperBound) return kBlack;
  return aColors[place(++Index)];
}

}  // namespace tavrelkin
