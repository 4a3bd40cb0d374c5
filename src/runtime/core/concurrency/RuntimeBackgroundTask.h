#pragma once

namespace tavrelkin {

// Yields the processor to other threads of the program. A thread is suspended if its turn is over. The main thread
// gives another thread a turn if it has worked for Scheduler::kTurn or longer. In all other cases the function returns
// at once. It never delivers events, so no handler starts while another one runs.
void RuntimeBackgroundTask();

}  // namespace tavrelkin
