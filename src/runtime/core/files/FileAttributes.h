#pragma once

#include <string>

struct stat;

namespace tavrelkin {

// Copies the attributes of the file at `path` to an open file: owner, group, mode, access list and extended attributes.
// `old` is the stat of that file. False if the access list or an extended attribute of the namespace "user" could not
// be copied.
//
// The group is kept if the user belongs to it, and the owner if the user may change owners. If the group is not kept,
// the new group gets no rights.
bool takeAttributes(int descriptor, const std::string& path, const struct stat& old);

}  // namespace tavrelkin
