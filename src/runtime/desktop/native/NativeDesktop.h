#pragma once

#include <memory>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// Makes the desktop of the real machine, on top of the toolkit. The toolkit's application object must exist first, and
// outlive the desktop. If the connection to the display breaks, the desktop prints a message to the standard error
// stream and ends the event loop with exit status 1.
std::unique_ptr<Desktop> makeNativeDesktop();

}  // namespace tavrelkin
