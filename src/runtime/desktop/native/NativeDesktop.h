#pragma once

#include <memory>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// The machine that the program runs on, through the toolkit. The toolkit's application object must exist first, and
// outlive the desktop. If the connection to the display breaks, it says so on the standard error stream and ends the
// program's event loop with exit status 1.
std::unique_ptr<Desktop> makeNativeDesktop();

}  // namespace tavrelkin
