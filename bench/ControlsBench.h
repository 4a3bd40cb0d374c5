#pragma once

#include "bench/support/Medians.h"
#include "driver/Hand.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin::bench {

// Adds the benchmarks of the colour controls and the views of an unfolded tool window, which is on the display of
// `hand`: painting a bar, a palette and the views, finding the preview's distinct colours, and a drag on a bar.
void addControlBenchmarks(frmVesk& window, test::Hand& hand);
void printControlRows(const Medians& medians);

}  // namespace tavrelkin::bench
