#pragma once

namespace tavrelkin {

// The yield. In a thread it suspends the thread when its turn is over. On the main thread it gives another thread a
// turn when the main thread has worked for long. Otherwise it returns at once. It never delivers events, so no handler
// starts while another one runs.
void RuntimeBackgroundTask();

}  // namespace tavrelkin
