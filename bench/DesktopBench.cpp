// Measures the built program from outside: its start and memory (StartBench.cpp), and the cost of following the pointer
// (FollowBench.cpp, CastBench.cpp). Prints rows of a table to the standard output.

#include <exception>
#include <iostream>

#include <sys/prctl.h>

#include "bench/CastBench.h"
#include "bench/FollowBench.h"
#include "bench/StartBench.h"

int main() {
  prctl(PR_SET_TIMERSLACK, 1);  // the pauses between two reads of the screen are shorter than the default slack
  try {
    tavrelkin::bench::benchStart();
    tavrelkin::bench::benchFollowing();
    tavrelkin::bench::benchCasting();
  } catch (const std::exception& fault) {
    std::cerr << "desktop_bench: " << fault.what() << std::endl;
    return 1;
  }
}
