#pragma once

#include <functional>

class QWidget;

namespace tavrelkin {

// Has the toolkit ask the runtime for how windows, canvases and labels present themselves to assistive technologies.
void installAccessibility();

// Has an announcement to assistive technologies wait until the widget has not changed for a moment, so that what
// changes with each frame doesn't flood them. A later one replaces it, and it goes with the widget.
void announceAtRest(QWidget& widget, std::function<void()> tell);

}  // namespace tavrelkin
