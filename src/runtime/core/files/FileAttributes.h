#pragma once

#include <string>

struct stat;

namespace tavrelkin {

// Gives an open file what the file at `path`, of the state `old`, has beside its contents: owner, group and mode, the
// access list, and the extended attributes. False where the new file can't have all that it should: its access list or
// an attribute of the user's.
//
// The group stays where the user belongs to it, the owner where the user may give files away. Another group doesn't get
// the rights of the old one.
bool takeAttributes(int descriptor, const std::string& path, const struct stat& old);

}  // namespace tavrelkin
