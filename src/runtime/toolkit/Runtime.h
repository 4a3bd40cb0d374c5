#pragma once

#include <memory>
#include <string>

#include "runtime/core/base/Ref.h"
#include "runtime/toolkit/Application.h"

class QApplication;

namespace tavrelkin {

// The runtime: the toolkit, the desktop and the event loop. A program makes one before all else and keeps it to the
// end.
class Runtime {
 public:
  // `iconFolder` is a folder of the program's resources with a picture for each size of the windows' icon. If it is
  // missing, the desktop chooses the icon.
  explicit Runtime(const std::string& iconFolder);
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime();

  // Runs an application: registers its command handlers, makes its first window, and runs the event loop until the
  // program quits. Returns the exit status.
  int run(Ref<Application> application);

 private:
  std::unique_ptr<QApplication> toolkit_;
};

// Configures a new QApplication: the look, which is the same on every desktop, the accessibility, the text painter of
// the core, and the handling of faults.
void setUpToolkit(QApplication& toolkit);

// Ends all threads, drops a pending request for the screen, and allows handlers again after a fault. For the end of the
// runtime.
void shutDownRuntime();

}  // namespace tavrelkin
