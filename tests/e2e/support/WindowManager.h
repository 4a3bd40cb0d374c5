#pragma once

#include "e2e/support/Home.h"
#include "e2e/support/Process.h"
#include "e2e/support/XServer.h"

namespace tavrelkin::test {

// A window manager that leaves all keys and all clicks inside of windows to the programs.
class WindowManager {
 public:
  // Returns when the windows are managed.
  explicit WindowManager(const XServer& server);

 private:
  Home home_;
  Process process_;
};

}  // namespace tavrelkin::test
