#pragma once

#include <filesystem>

#include "driver/Process.h"
#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin::test {

// PipeWire without a session manager and without devices, in a folder of its own.
class PipeWireDaemon {
 public:
  // Returns when the daemon accepts connections. Throws if it doesn't start.
  PipeWireDaemon();

  // Opens a new connection. Throws if the daemon has ended.
  FileDescriptor connect() const;

  // Ends the daemon at once, as a crash does.
  void kill() { process_.end(SIGKILL); }

 private:
  std::filesystem::path writeConfiguration() const;

  Home home_;
  Process process_;
};

}  // namespace tavrelkin::test
