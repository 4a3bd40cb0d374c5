#include "runtime/desktop/portal/DBusSignal.h"

#include <utility>

namespace tavrelkin {

DBusSignal::DBusSignal(QDBusConnection bus, const Source& source, Receive receive) : receive_(std::move(receive)) {
  bus.connect(source.sender, source.path, source.interface, source.name, this, SLOT(take(QDBusMessage)));
}

void DBusSignal::take(const QDBusMessage& message) {
  const auto receive = receive_;  // a copy, which outlives this object
  receive(message);
}

}  // namespace tavrelkin
