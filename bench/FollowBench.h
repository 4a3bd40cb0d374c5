#pragma once

namespace tavrelkin::bench {

// Prints the rows for the idle program, and for one or more of its windows that follow the pointer.
void benchFollowing();

}  // namespace tavrelkin::bench
