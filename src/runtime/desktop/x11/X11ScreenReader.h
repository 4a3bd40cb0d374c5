#pragma once

#include <functional>
#include <memory>
#include <string>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// Reads the display that DISPLAY names, over a connection of its own. Nil where there is no such display or its pixels
// are of a kind that PixelFormat does not know. It needs a running event loop of the toolkit to watch the pointer and
// to follow changes of the screen's size.
//
// When the connection breaks, `connectionLost` is called once with what happened in plain words, maybe from inside one
// of the operations, and must not destroy the reader. From then on all pixels are black and the pointer stays where it
// was.
std::unique_ptr<ScreenReader> makeX11ScreenReader(std::function<void(std::string)> connectionLost);

}  // namespace tavrelkin
