#pragma once

#include <string>

namespace tavrelkin {

// The program's folder below XDG_DATA_HOME, or below ~/.local/share where that is unset or no absolute path; made where
// it is missing, if that can be.
std::string makeApplicationDataFolder();

}  // namespace tavrelkin
