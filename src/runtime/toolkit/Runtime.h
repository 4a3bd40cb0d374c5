#pragma once

#include <memory>
#include <string>

#include "runtime/core/base/Ref.h"
#include "runtime/toolkit/Application.h"

class QApplication;

namespace tavrelkin {

// The runtime itself: the toolkit, the desktop and the event loop. One for the life of the program, made first.
class Runtime {
 public:
  // The icon of all windows comes from a folder among the program's own resources, which has a picture for each size; a
  // folder that is not there leaves the icon to the desktop.
  explicit Runtime(const std::string& iconFolder);
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime();

  // Runs an application: its command handlers, its first window, then the event loop, until the program quits. Gives
  // the exit status.
  int run(Ref<Application> application);

 private:
  std::unique_ptr<QApplication> toolkit_;
};

// Makes a toolkit that has just been made the program's own: its look, the same on every desktop, what it tells
// assistive technologies, and what the core takes from it.
void setUpToolkit(QApplication& toolkit);

// Ends all threads, and forgets the request for the screen that is under way and a fault that was told. For the end of
// the runtime.
void shutDownRuntime();

}  // namespace tavrelkin
