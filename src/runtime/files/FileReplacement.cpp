#include "runtime/files/FileReplacement.h"

#include <cerrno>
#include <system_error>
#include <tuple>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrelkin {

namespace {

namespace fs = std::filesystem;

// The file that a name stands for in the end, which may be missing. A ring of links stays a link.
fs::path behindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code failed;
  for (int i = 0; i < kMostLinks && fs::is_symlink(path, failed); ++i)
    path = path.parent_path() / fs::read_symlink(path, failed);
  return path;
}

// Why the file with this state may not be replaced, as an error number, or 0.
int refusal(const fs::path& path, const struct stat& old) {
  if (!S_ISREG(old.st_mode)) return EISDIR;
  return access(path.c_str(), W_OK) == 0 ? 0 : errno;
}

int writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return errno;
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

std::string reason(int error) {
  switch (error) {
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
      return std::generic_category().message(error) + ".";
  }
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
  openBeside();
  if (exists && isOpen()) takeAfter(old);
}

FileReplacement::~FileReplacement() {
  if (!isOpen()) return;
  close(descriptor_);
  unlink(temporary_.c_str());
}

// The name is a short one of its own, since the target's may be as long as names can be. Left-overs of a program that
// crashed are passed over.
void FileReplacement::openBeside() {
  constexpr int kMostTries = 1000;
  const std::string stem = ".tavrelkin-" + std::to_string(getpid()) + "-";
  for (int i = 0; i < kMostTries; ++i) {
    temporary_ = target_.parent_path() / (stem + std::to_string(i));
    descriptor_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (isOpen()) return;
    error_ = errno;
    if (error_ != EEXIST) return;
  }
}

// The group stays where the user belongs to it, the owner where the user may give files away. The rights of a group are
// not for another one.
void FileReplacement::takeAfter(const struct stat& old) const {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  const bool keptGroup =
      fchown(descriptor_, old.st_uid, old.st_gid) == 0 || fchown(descriptor_, kSameOwner, old.st_gid) == 0;
  std::ignore = fchmod(descriptor_, old.st_mode & (keptGroup ? 0777U : 0707U));
}

bool FileReplacement::commit(std::string_view bytes) {
  error_ = writeAll(descriptor_, bytes);
  if (close(std::exchange(descriptor_, -1)) != 0 && error_ == 0) error_ = errno;
  if (error_ == 0) {
    std::error_code failed;
    fs::rename(temporary_, target_, failed);
    error_ = failed.value();
  }
  if (error_ != 0) unlink(temporary_.c_str());
  return error_ == 0;
}

std::string FileReplacement::failure() const {
  return "The file \"" + target_.filename().string() + "\" was not saved. " + reason(error_) +
         "\n\nNothing in its folder has changed.";
}

}  // namespace tavrelkin
