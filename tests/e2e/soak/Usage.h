#pragma once

#include <cstdint>
#include <ostream>

#include <sys/types.h>

#include "e2e/X11Client.h"

namespace tavrelkin::test {

// What a program holds of the machine.
struct Usage {
  int memory = 0;       // KiB of its own, in the memory
  int handles = 0;      // open files
  int resources = 0;    // on the X server, of all kinds, by all its connections
  int pixmapBytes = 0;  // KiB that its pixmaps take there
};

// Of the process with this id. `client` is any connection to its display.
Usage usageOf(pid_t process, X11Client& client);

std::ostream& operator<<(std::ostream& stream, const Usage& usage);

}  // namespace tavrelkin::test
