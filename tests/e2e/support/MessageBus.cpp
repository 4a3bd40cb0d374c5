#include "e2e/support/MessageBus.h"

#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

MessageBus::MessageBus(const Home& home, const XServer& server)
    : process_({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"},
               home.environment(server.display())) {
  const auto isReady = [this] {
    address_ = process_.output();
    return address_.ends_with('\n');
  };
  if (!waitUntil(isReady)) throw std::runtime_error("The message bus did not start: " + process_.errors());
  address_.pop_back();
}

}  // namespace tavrelkin::test
