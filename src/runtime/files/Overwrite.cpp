#include "runtime/files/Overwrite.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <string>

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

  auto [count, error] = writeAll(descriptor, bytes);
  if (error == 0) error = errorOf(fsync(descriptor));
  if (error == 0) error = errorOf(ftruncate(descriptor, static_cast<off_t>(bytes.size())));
  if (error == 0) return {};

  kept.resize(std::min(kept.size(), count));
  const bool restored = writeAll(descriptor, kept).error == 0 && ftruncate(descriptor, old.st_size) == 0;
  return {.error = error, .isDamaged = !restored};
}

}  // namespace tavrelkin
