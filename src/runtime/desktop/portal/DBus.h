#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariant>

namespace tavrelkin {

// Calls a method and returns at once. The event loop passes the reply to `done`. The reply is an error message if the
// bus is not connected, if the call fails, or if no reply comes within `patience`. `done` is not called if `context` is
// destroyed first; it may itself destroy `context`.
void callMethod(const QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const QDBusMessage&)> done);

// The structure or array in `value`, whose D-Bus type must be `signature`; nothing if `value` holds anything else. A
// caller that begins to read the structure or array must also end it; otherwise the toolkit leaks memory.
std::optional<const QDBusArgument> argumentOf(const QVariant& value, const char* signature);

// Receives one signal of one object on a bus while it lives. The signals come from the event loop.
class DBusSignal : public QObject {
  Q_OBJECT

 public:
  struct Source {
    QString sender;  // a unique name, since the lookup of a well-known one blocks; empty for any sender
    QString path;
    QString interface;
    QString name;
  };
  using Receive = std::function<void(const QDBusMessage&)>;

  // `receive` may destroy this object.
  DBusSignal(QDBusConnection bus, const Source& source, Receive receive);

 private:
  Q_SLOT void take(const QDBusMessage& message);

  Receive receive_;
};

}  // namespace tavrelkin
