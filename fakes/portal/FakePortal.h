#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QMetaType>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "fakes/portal/MessageBus.h"

namespace tavrelkin::test {

// Values in the form in which the portal sends them.
struct PortalStream {  // (ua{sv})
  std::uint32_t node = 0;
  QVariantMap properties;
};
struct PortalColor {  // (ddd), each from 0 to 1
  double red = 0;
  double green = 0;
  double blue = 0;
};

PortalStream monitor(std::uint32_t node, QPoint position, QSize size);

// A played desktop portal on a bus. It grants all requests at once, unless the test changes that.
class FakePortal : public QDBusVirtualObject {
 public:
  explicit FakePortal(const QString& busAddress);

  // The properties of the interfaces ScreenCast and Screenshot; an interface without properties is missing.
  QVariantMap cast;
  QVariantMap screenshot;

  QList<PortalStream> streams{monitor(1, {0, 0}, {1280, 1024})};
  QString token = QStringLiteral("first token");  // the token that Start returns
  PortalColor color;                              // the colour that the user picks
  std::function<int()> connectPipeWire;           // returns an open file descriptor, which is closed after use

  // By the name of a method: replies in place of the right ones, methods without a reply, and methods whose Response
  // waits for respond().
  std::map<QString, QVariantList> replies;
  std::map<QString, QVariantList> responses;
  QStringList mute;
  QStringList undecided;
  std::chrono::milliseconds delay{0};  // the time before each Response

  // What the program did: the options of its last call of each method, the number of its calls, and the paths of
  // requests and sessions that are still open.
  std::map<QString, QVariantMap> options;
  std::map<QString, int> calls;
  QStringList open;
  QString session;  // the path of the last session

  // Sends the Response of the last call of the method.
  void respond(const QString& method);

  // Closes the last session, as a user or a desktop may do.
  void closeSession();

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  QVariantList replyTo(const QDBusMessage& call);
  QVariantList responseOf(const QString& method) const;
  void send(const QString& path, const QString& interface, const QString& name, const QVariantList& arguments);

  BusConnection connection_;
  std::map<QString, QString> requests_;  // the path of the last call of each method
};

}  // namespace tavrelkin::test

Q_DECLARE_METATYPE(tavrelkin::test::PortalStream)
Q_DECLARE_METATYPE(tavrelkin::test::PortalColor)
