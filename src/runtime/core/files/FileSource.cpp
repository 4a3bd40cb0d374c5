#include "runtime/core/files/FileSource.h"

#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrelkin {

// Without O_NONBLOCK, opening a pipe would wait for a writer.
FileSource::FileSource(const std::string& path) : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (!isOpen()) return;
  struct stat state {};
  if (fstat(descriptor_, &state) == 0 && S_ISREG(state.st_mode))
    size_ = state.st_size;
  else
    close(std::exchange(descriptor_, -1));
}

FileSource::~FileSource() {
  if (isOpen()) close(descriptor_);
}

std::uint8_t FileSource::at(std::int64_t position) {
  if (position < 0 || position >= size_) return 0;
  if (inBlock(position) >= block_.size()) load(position);
  return inBlock(position) < block_.size() ? block_[inBlock(position)] : 0;
}

void FileSource::load(std::int64_t position) {
  constexpr std::size_t kBlock = 65536;
  block_.resize(kBlock);
  const ssize_t count = pread(descriptor_, block_.data(), kBlock, position);
  block_.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  blockAt_ = position;
}

}  // namespace tavrelkin
