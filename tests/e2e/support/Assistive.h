#pragma once

#include <string>
#include <vector>

#include "e2e/support/Process.h"
#include "e2e/support/Session.h"

namespace tavrelkin::test {

// An assistive technology in a session with a message bus, which asks the program and does things to it; assistive.py
// says what, and how its answers read.
class Assistive {
 public:
  // Turns assistive technologies on, and listens to what the program announces.
  explicit Assistive(const Session& session);

  // Gives the answer. Throws where what the command names isn't there.
  std::string ask(const std::vector<std::string>& command) const;

  // What has been announced so far.
  std::string heard() const { return listener_.output(); }

 private:
  std::vector<std::string> environment_;
  Process listener_;
};

}  // namespace tavrelkin::test
