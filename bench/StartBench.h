#pragma once

namespace tavrelkin::bench {

// Prints the rows for the start and the memory of the program, beside those of a bare window.
void benchStart();

}  // namespace tavrelkin::bench
