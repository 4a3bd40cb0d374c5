#include "fakes/portal/FakePortal.h"

#include <stdexcept>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QTimer>

#include <unistd.h>

namespace tavrelkin::test {

QDBusArgument& operator<<(QDBusArgument& argument, const PortalStream& stream) {
  argument.beginStructure();
  argument << stream.node << stream.properties;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalStream& stream) {
  argument.beginStructure();
  argument >> stream.node >> stream.properties;
  argument.endStructure();
  return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const PortalColor& color) {
  argument.beginStructure();
  argument << color.red << color.green << color.blue;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor& color) {
  argument.beginStructure();
  argument >> color.red >> color.green >> color.blue;
  argument.endStructure();
  return argument;
}

namespace {

const auto root = QStringLiteral("/org/freedesktop/portal/desktop");
const auto family = QStringLiteral("org.freedesktop.portal.");

QString pathOf(const QString& kind, const QDBusMessage& call, const QString& token) {
  const QString sender = call.service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  return QStringLiteral("%1/%2/%3/%4").arg(root, kind, sender, token);
}

}  // namespace

PortalStream monitor(std::uint32_t node, QPoint position, QSize size) {
  return {node, {{QStringLiteral("position"), position}, {QStringLiteral("size"), size}}};
}

FakePortal::FakePortal(const QString& busAddress)
    : cast{{QStringLiteral("version"), 4u},
           {QStringLiteral("AvailableSourceTypes"), 3u},
           {QStringLiteral("AvailableCursorModes"), 7u}},
      screenshot{{QStringLiteral("version"), 2u}},
      connection_(busAddress) {
  qDBusRegisterMetaType<PortalStream>();
  qDBusRegisterMetaType<QList<PortalStream>>();
  qDBusRegisterMetaType<PortalColor>();
  if (!connection_.bus.registerVirtualObject(root, this, QDBusConnection::SubPath) ||
      !connection_.bus.registerService(family + QStringLiteral("Desktop")))
    throw std::runtime_error("The portal can't be registered on the bus.");
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
  const QString method = message.member();
  if (method == QLatin1String("Close")) {
    open.removeAll(message.path());
    return true;
  }
  ++calls[method];
  if (mute.contains(method)) return true;
  const auto arguments = replyTo(message);
  if (arguments.isEmpty()) return false;
  connection_.bus.send(message.createReply(arguments));
  const bool hasRequest = requests_.contains(method);
  if (hasRequest && !undecided.contains(method)) QTimer::singleShot(delay, this, [this, method] { respond(method); });
  return true;
}

// The method's immediate reply; empty if there is no such method.
QVariantList FakePortal::replyTo(const QDBusMessage& call) {
  const QString method = call.member();
  const auto arguments = call.arguments();
  const auto reply = replies.find(method);
  if (method == QLatin1String("GetAll")) {
    if (reply != replies.end()) return reply->second;
    const auto& properties = arguments.at(0).toString() == family + QStringLiteral("ScreenCast") ? cast : screenshot;
    return properties.isEmpty() ? QVariantList() : QVariantList{properties};
  }
  const auto given = options[method] = qdbus_cast<QVariantMap>(arguments.last());
  if (method == QLatin1String("OpenPipeWireRemote")) {
    if (reply != replies.end()) return reply->second;
    const int fd = connectPipeWire();
    const QDBusUnixFileDescriptor sent(fd);
    close(fd);
    return {QVariant::fromValue(sent)};
  }
  QString path = pathOf(QStringLiteral("request"), call, given[QStringLiteral("handle_token")].toString());
  if (method == QLatin1String("CreateSession")) {
    session = pathOf(QStringLiteral("session"), call, given[QStringLiteral("session_handle_token")].toString());
    open << session;
  }
  if (reply != replies.end()) {
    path = reply->second.at(0).value<QDBusObjectPath>().path();
    if (path.isEmpty()) return reply->second;
  }
  requests_[method] = path;
  open << path;
  return {QVariant::fromValue(QDBusObjectPath(path))};
}

QVariantList FakePortal::responseOf(const QString& method) const {
  if (const auto found = responses.find(method); found != responses.end()) return found->second;
  QVariantMap results;
  if (method == QLatin1String("CreateSession")) results[QStringLiteral("session_handle")] = session;
  if (method == QLatin1String("PickColor")) results[QStringLiteral("color")] = QVariant::fromValue(color);
  if (method == QLatin1String("Start")) {
    results[QStringLiteral("streams")] = QVariant::fromValue(streams);
    if (!token.isEmpty()) results[QStringLiteral("restore_token")] = token;
  }
  return {0u, results};
}

void FakePortal::respond(const QString& method) {
  const QString path = requests_.at(method);
  open.removeAll(path);
  send(path, QStringLiteral("Request"), QStringLiteral("Response"), responseOf(method));
}

void FakePortal::closeSession() {
  open.removeAll(session);
  send(session, QStringLiteral("Session"), QStringLiteral("Closed"), {QVariantMap()});
}

void FakePortal::send(const QString& path, const QString& interface, const QString& name,
                      const QVariantList& arguments) {
  auto signal = QDBusMessage::createSignal(path, family + interface, name);
  signal.setArguments(arguments);
  connection_.bus.send(signal);
}

}  // namespace tavrelkin::test
