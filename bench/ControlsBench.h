#pragma once

#include "bench/support/Medians.h"
#include "driver/Hand.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin::bench {

// The colour controls and the views of an unfolded tool window, which shows on the display of `hand`: the paint of a
// bar, of a palette and of the views, the walk over the preview's colours, and a drag on a bar.
void addControlBenchmarks(frmVesk& window, test::Hand& hand);
void printControlRows(const Medians& medians);

}  // namespace tavrelkin::bench
