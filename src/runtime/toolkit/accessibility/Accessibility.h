#pragma once

#include <functional>

class QWidget;

namespace tavrelkin {

// Installs the runtime's accessible interfaces for windows, canvases and labels.
void installAccessibility();

// Calls `tell` when no further call for the widget has come for 200 ms. So changes with each frame don't flood
// assistive technologies with announcements. A later call replaces `tell`; the destruction of the widget drops it.
void announceAtRest(QWidget& widget, std::function<void()> tell);

}  // namespace tavrelkin
