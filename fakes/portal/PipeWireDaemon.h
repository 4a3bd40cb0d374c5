#pragma once

#include <filesystem>

#include "driver/Process.h"
#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin::test {

// A PipeWire without a session manager and without devices, in a folder of its own.
class PipeWireDaemon {
 public:
  // Returns when it can be connected to. Throws where it doesn't start.
  PipeWireDaemon();

  // A new connection. Throws where the daemon is gone.
  FileDescriptor connect() const;

  // Ends it at once, as in a crash.
  void kill() { process_.end(SIGKILL); }

 private:
  std::filesystem::path writeConfiguration() const;

  Home home_;
  Process process_;
};

}  // namespace tavrelkin::test
