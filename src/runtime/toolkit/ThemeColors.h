#pragma once

#include "runtime/core/drawing/Color.h"

// The colours of the program's look, the same on every desktop (runtime/toolkit/Runtime.h), for drawing controls that
// go with the toolkit's.
namespace tavrelkin {

// The ground that controls stand on, and texts on it.
Color FillColor();
Color TextColor();

// The dark edge of a raised control; also texts of disabled controls.
Color DarkBevelColor();

// The shaded and the lit edge of a pressed or raised field.
Color DarkTingeColor();
Color LightTingeColor();

}  // namespace tavrelkin
