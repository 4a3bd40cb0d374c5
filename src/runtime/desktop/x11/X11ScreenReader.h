#pragma once

#include <functional>
#include <memory>
#include <string>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// Makes a reader of the display that DISPLAY names, on a connection of its own. Null if there is no such display, or
// PixelFormat does not support its pixels. The reader needs the toolkit's event loop to watch the pointer and to follow
// changes of the screen's size.
//
// When the connection breaks, the reader calls `connectionLost` once with a plain description, possibly during one of
// its operations. The function must not destroy the reader. From then on all pixels are black and the pointer stays
// where it was.
std::unique_ptr<ScreenReader> makeX11ScreenReader(std::function<void(std::string)> connectionLost);

}  // namespace tavrelkin
