#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

namespace tavrelkin {

// Calls a method and returns at once. `done` takes the reply from the event loop: an error message where the bus is not
// connected, the call fails, or no reply comes within `patience`. It is not called if `context` ends first, and may end
// it.
void callMethod(const QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const QDBusMessage&)> done);

// The structure or array of the D-Bus type `signature` that `value` holds; nothing if it holds anything else. Whoever
// begins to read it has to end it, since the toolkit leaks what is left open.
std::optional<const QDBusArgument> argumentOf(const QVariant& value, const char* signature);

}  // namespace tavrelkin
