#pragma once

#include <string>

#include "e2e/support/Home.h"
#include "e2e/support/Process.h"
#include "e2e/support/XServer.h"

namespace tavrelkin::test {

// The message bus of a session, which starts the services that are asked for, such as the one of assistive
// technologies.
class MessageBus {
 public:
  // Returns when programs can connect to it.
  MessageBus(const Home& home, const XServer& server);

  // As in DBUS_SESSION_BUS_ADDRESS.
  const std::string& address() const { return address_; }

 private:
  Process process_;
  std::string address_;
};

}  // namespace tavrelkin::test
