#pragma once

namespace tavrelkin {

// The yield: in a thread it gives way when the thread's turn is over, on the main thread it may give a turn to other
// threads when the main thread has been at work for long. Returns at once otherwise. It never delivers events, so that
// no handler is entered while another is at work, and changes no result.
void RuntimeBackgroundTask();

}  // namespace tavrelkin
