#include "runtime/core/files/FileReplacement.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/core/files/FileAttributes.h"

namespace tavrelkin {

namespace {

namespace fs = std::filesystem;

// Follows symbolic links to the file, which may be missing. A cycle of links gives one of its links.
fs::path behindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code failed;
  for (int i = 0; i < kMostLinks && fs::is_symlink(path, failed); ++i)
    path = path.parent_path() / fs::read_symlink(path, failed);
  return path;
}

// An error number if the file with this state may not be written, or 0.
int refusal(const fs::path& path, const struct stat& old) {
  if (!S_ISREG(old.st_mode)) return EISDIR;
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

// Whether the bytes may still fit into the old file after this error for a new file.
bool mayFitInPlace(int error) {
  return error == ENOSPC || error == EDQUOT;
}

int errorOf(int result) {
  return result == 0 ? 0 : errno;
}

// Fills `kept` with the file's first bytes. Shortens it if the file is shorter. Returns an error number, or 0.
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

// Reserves disk space for a file of `size` bytes, so that a full disk fails before anything is overwritten. Returns an
// error number, or 0.
int reserve(int descriptor, off_t oldSize, off_t size) {
  if (size <= oldSize) return 0;
  const int error = posix_fallocate(descriptor, oldSize, size - oldSize);
  return error != 0 && ftruncate(descriptor, oldSize) != 0 ? errno : error;
}

struct WriteResult {
  std::size_t count;  // the number of bytes written
  int error;          // an error number, or 0
};

// Writes bytes at the beginning of an open file, until an error.
WriteResult writeAll(int descriptor, std::string_view bytes) {
  std::size_t count = 0;
  while (count < bytes.size()) {
    const ssize_t more = pwrite(descriptor, bytes.data() + count, bytes.size() - count, static_cast<off_t>(count));
    if (more < 0 && errno != EINTR) return {count, errno};
    if (more > 0) count += static_cast<std::size_t>(more);
  }
  return {count, 0};
}

struct OverwriteResult {
  int error = 0;           // an error number, or 0
  bool isDamaged = false;  // whether the old contents are lost; only after an error
};

// Replaces the contents of a file that is open for reading and writing, and waits until they are on the disk. The bytes
// that are overwritten are kept in memory, and are written back after an error. The file is truncated last, when
// nothing else can fail.
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

}  // namespace

FileReplacement::FileReplacement(const std::string& path) : target_(behindLinks(path)) {
  struct stat old {};
  const bool exists = stat(target_.c_str(), &old) == 0;
  if (exists)
    error_ = refusal(target_, old);
  else if (errno != ENOENT)
    error_ = errno;
  if (error_ != 0) return;
  if (!exists || old.st_nlink == 1) openBeside();
  if (!exists || (isOpen() && takeAttributes(descriptor_, target_, old))) return;
  discard();
  openInPlace();
}

FileReplacement::~FileReplacement() {
  discard();
}

void FileReplacement::discard() {
  if (isOpen()) close(std::exchange(descriptor_, -1));
  if (!temporary_.empty()) unlink(temporary_.c_str());
  temporary_.clear();
}

// The name doesn't contain the target's name, which may already have the greatest length. The number skips files that a
// crashed program has left.
void FileReplacement::openBeside() {
  constexpr int kMostTries = 1000;
  const std::string stem = ".tavrelkin-" + std::to_string(getpid()) + "-";
  for (int i = 0; i < kMostTries; ++i) {
    const fs::path path = target_.parent_path() / (stem + std::to_string(i));
    descriptor_ = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (isOpen()) return void(temporary_ = path);
    error_ = errno;
    if (error_ != EEXIST) return;
  }
}

void FileReplacement::openInPlace() {
  descriptor_ = open(target_.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
  error_ = isOpen() ? 0 : errno;
}

bool FileReplacement::commit(std::string_view bytes) {
  if (!temporary_.empty()) replaceWhole(bytes);
  if (isOpen()) writeInPlace(bytes);
  return error_ == 0;
}

// If this fails, the old file is opened for writing in place, if that may still work. A folder can allow new files but
// no replacements.
void FileReplacement::replaceWhole(std::string_view bytes) {
  error_ = writeAll(descriptor_, bytes).error;
  if (close(std::exchange(descriptor_, -1)) != 0 && error_ == 0) error_ = errno;
  const bool isWritten = error_ == 0;
  if (isWritten && rename(temporary_.c_str(), target_.c_str()) == 0) return temporary_.clear();
  const int error = isWritten ? errno : error_;
  discard();
  if (isWritten || mayFitInPlace(error)) openInPlace();
  if (!isOpen()) error_ = error;
}

void FileReplacement::writeInPlace(std::string_view bytes) {
  const OverwriteResult result = overwrite(descriptor_, bytes);
  error_ = result.error;
  isDamaged_ = result.isDamaged;
  discard();
}

std::string FileReplacement::reason() const {
  switch (error_) {
    case ENOSPC:
      return "The disk is full.";
    case EDQUOT:
      return "There is no room left for your files on the disk.";
    case EACCES:
    case EPERM:
    case EROFS:
      return "You may not write there.";
    case ENOENT:
    case ENOTDIR:
      return "The folder does not exist.";
    case EISDIR:
      return "Something that is no ordinary file has this name.";
    default:
      return std::generic_category().message(error_) + ".";
  }
}

std::string FileReplacement::failure() const {
  const char* const state = isDamaged_ ? "What it held before is lost." : "Nothing in its folder has changed.";
  return "The file \"" + target_.filename().string() + "\" was not saved. " + reason() + "\n\n" + state;
}

}  // namespace tavrelkin
