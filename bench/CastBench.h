#pragma once

namespace tavrelkin::bench {

// Prints the rows for following on a desktop that casts its screen.
void benchCasting();

}  // namespace tavrelkin::bench
