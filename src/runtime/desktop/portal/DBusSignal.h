#pragma once

#include <functional>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

namespace tavrelkin {

// Receives one signal of one object on a bus, from the event loop, for as long as it lives.
class DBusSignal : public QObject {
  Q_OBJECT

 public:
  struct Source {
    QString sender;  // its unique name, since a well-known one would be looked up by a call that blocks; or empty
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
