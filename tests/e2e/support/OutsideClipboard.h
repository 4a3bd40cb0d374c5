#pragma once

#include <memory>
#include <string>

#include "e2e/X11Client.h"
#include "e2e/support/Home.h"
#include "e2e/support/Process.h"
#include "e2e/support/XServer.h"

namespace tavrelkin::test {

// The clipboard, as another program uses it.
class OutsideClipboard {
 public:
  OutsideClipboard(const XServer& server, X11Client& client) : server_(server), client_(client) {}

  // The text is on offer until something else is copied or the object goes.
  void copy(const std::string& text);
  // The text that is on offer now; empty if there is none.
  std::string paste() const;

 private:
  xcb_window_t owner() const;

  const XServer& server_;
  X11Client& client_;
  Home home_;
  std::unique_ptr<Process> offer_;
};

}  // namespace tavrelkin::test
