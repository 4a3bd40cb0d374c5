#include "runtime/core/files/FileAttributes.h"

#include <cerrno>
#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tavrelkin {

namespace {

constexpr auto kAccessList = "system.posix_acl_access";

// Calls a function of the system with a buffer of the size that it asks for, and returns what it wrote. Nothing if it
// fails.
template <class Read>
std::optional<std::string> filled(const Read& read) {
  std::string buffer;
  for (;;) {
    const ssize_t size = read(nullptr, 0);
    if (size < 0) return std::nullopt;
    buffer.resize(static_cast<std::size_t>(size));
    const ssize_t count = read(buffer.data(), buffer.size());
    if (count < 0 && errno == ERANGE) continue;  // the data has grown
    if (count < 0) return std::nullopt;
    buffer.resize(static_cast<std::size_t>(count));
    return buffer;
  }
}

// The names of a file's extended attributes. Empty if the file system has no attributes.
std::vector<std::string> attributeNames(const std::string& path) {
  const auto list = filled([&](char* buffer, std::size_t size) { return listxattr(path.c_str(), buffer, size); });
  std::vector<std::string> names;
  std::string_view rest = list ? *list : std::string_view();
  while (!rest.empty()) {
    names.emplace_back(rest.substr(0, rest.find('\0')));
    rest.remove_prefix(names.back().size() + 1);
  }
  return names;
}

// Whether a copy without this attribute is incomplete. Attributes of the system and of security modules don't count:
// the user may have no right to set them, or they belong to the contents.
bool mustStay(std::string_view name) {
  return name.starts_with("user.") || name == kAccessList;
}

bool copyAttribute(int descriptor, const std::string& path, const std::string& name) {
  const auto value =
      filled([&](char* buffer, std::size_t size) { return getxattr(path.c_str(), name.c_str(), buffer, size); });
  return value && fsetxattr(descriptor, name.c_str(), value->data(), value->size(), 0) == 0;
}

bool takeOwners(int descriptor, const struct stat& old) {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  return fchown(descriptor, old.st_uid, old.st_gid) == 0 || fchown(descriptor, kSameOwner, old.st_gid) == 0;
}

}  // namespace

// The access list that the new file may have inherited from its folder is removed first, since it could let others in.
// The mode is set before the old access list, which is more exact and changes the mode.
bool takeAttributes(int descriptor, const std::string& path, const struct stat& old) {
  const bool keptGroup = takeOwners(descriptor, old);
  std::ignore = fremovexattr(descriptor, kAccessList);
  std::ignore = fchmod(descriptor, old.st_mode & (keptGroup ? 0777U : 0707U));
  bool complete = true;
  for (const std::string& name : attributeNames(path)) {
    const bool copied = (keptGroup || name != kAccessList) && copyAttribute(descriptor, path, name);
    complete = complete && (copied || !mustStay(name));
  }
  return complete;
}

}  // namespace tavrelkin
