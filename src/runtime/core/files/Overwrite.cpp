#include "runtime/core/files/Overwrite.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrelkin {

namespace {

int errorOf(int result) {
  return result == 0 ? 0 : errno;
}

// Makes `kept` as long as the file, at most, and fills it with the file's first bytes.
int keep(int descriptor, std::string& kept) {
  std::size_t count = 0;
  while (count < kept.size()) {
    const ssize_t more = pread(descriptor, kept.data() + count, kept.size() - count, static_cast<off_t>(count));
    if (more < 0 && errno != EINTR) return errno;
    if (more == 0) break;
    if (more > 0) count += static_cast<std::size_t>(more);
  }
  kept.resize(count);
  return 0;
}

// Has the disk keep room for a file of so many bytes, so that nothing is overwritten in vain.
int reserve(int descriptor, off_t oldSize, off_t size) {
  if (size <= oldSize) return 0;
  const int error = posix_fallocate(descriptor, oldSize, size - oldSize);
  return error != 0 && ftruncate(descriptor, oldSize) != 0 ? errno : error;
}

}  // namespace

WriteResult writeAll(int descriptor, std::string_view bytes) {
  std::size_t count = 0;
  while (count < bytes.size()) {
    const ssize_t more = pwrite(descriptor, bytes.data() + count, bytes.size() - count, static_cast<off_t>(count));
    if (more < 0 && errno != EINTR) return {count, errno};
    if (more > 0) count += static_cast<std::size_t>(more);
  }
  return {count, 0};
}

// The end of a longer file is cut off last, when nothing else can fail.
OverwriteResult overwrite(int descriptor, std::string_view bytes) {
  struct stat old {};
  if (fstat(descriptor, &old) != 0) return {.error = errno};
  std::string kept(bytes.size(), '\0');
  if (const int error = keep(descriptor, kept); error != 0) return {.error = error};

  if (const int error = reserve(descriptor, old.st_size, static_cast<off_t>(bytes.size())); error != 0)
    return {.error = error};

  auto [count, error] = writeAll(descriptor, bytes);
  if (error == 0) error = errorOf(fsync(descriptor));
  if (error == 0) error = errorOf(ftruncate(descriptor, static_cast<off_t>(bytes.size())));
  if (error == 0) return {};

  kept.resize(std::min(kept.size(), count));
  const bool restored =
      writeAll(descriptor, kept).error == 0 && ftruncate(descriptor, old.st_size) == 0 && fsync(descriptor) == 0;
  return {.error = error, .isDamaged = !restored};
}

}  // namespace tavrelkin
