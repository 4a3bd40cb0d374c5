#include "runtime/core/files/BinaryStream.h"

#include <cstddef>
#include <utility>

#include "runtime/core/files/FileReplacement.h"
#include "runtime/core/files/FileSource.h"
#include "runtime/core/system/Dialogs.h"

namespace tavrelkin {

BinaryStream::BinaryStream(std::unique_ptr<FileSource> source) : source_(std::move(source)) {}
BinaryStream::BinaryStream(std::unique_ptr<FileReplacement> target) : target_(std::move(target)) {}
BinaryStream::~BinaryStream() = default;

std::int64_t BinaryStream::size() const {
  return source_ ? source_->size() : static_cast<std::int64_t>(written_.size());
}

bool BinaryStream::EOF() const {
  return Position >= size();
}

Int32 BinaryStream::ReadByte() {
  const std::int64_t at = Position++;
  return source_ ? source_->at(at) : 0;
}

Int32 BinaryStream::ReadShort() {
  const Int32 high = ReadByte();
  return static_cast<std::int16_t>(high << 8 | ReadByte());
}

void BinaryStream::WriteByte(Int32 value) {
  if (!target_) return;
  if (Position < 0) throw OutOfBoundsException();
  const auto at = static_cast<std::size_t>(Position++);
  if (at < written_.size()) {
    written_[at] = static_cast<char>(value);
    return;
  }
  if (at > written_.size()) written_.resize(at);
  written_.push_back(static_cast<char>(value));
}

void BinaryStream::WriteShort(Int32 value) {
  WriteByte(value >> 8);
  WriteByte(value);
}

void BinaryStream::Close() {
  source_.reset();
  const std::unique_ptr<FileReplacement> target = std::move(target_);
  const std::string bytes = std::exchange(written_, {});
  if (target && !target->commit(bytes)) MsgBox(target->failure());
}

}  // namespace tavrelkin
