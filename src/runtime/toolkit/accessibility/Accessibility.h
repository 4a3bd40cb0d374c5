#pragma once

namespace tavrelkin {

// Has the toolkit ask the runtime for how windows, canvases and labels present themselves to assistive technologies.
void installAccessibility();

}  // namespace tavrelkin
