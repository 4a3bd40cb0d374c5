#include "runtime/desktop/portal/PortalRequest.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QTimer>
#include <QUuid>

#include "runtime/desktop/portal/DBus.h"
#include "runtime/desktop/portal/PortalInterface.h"

namespace tavrelkin {

namespace {

QString requestInterface() {
  return QStringLiteral("org.freedesktop.portal.Request");
}

}  // namespace

QString newHandleToken() {
  return QStringLiteral("tavrelkin_") + QUuid::createUuid().toString(QUuid::Id128);
}

QString handlePath(const QDBusConnection& bus, const char* kind, const QString& token) {
  const QString sender = bus.baseService().remove(QLatin1Char(':')).replace(QLatin1Char('.'), QLatin1Char('_'));
  return QStringLiteral("%1/%2/%3/%4").arg(QString::fromLatin1(portalPath), QString::fromLatin1(kind), sender, token);
}

PortalRequest::PortalRequest(QDBusConnection bus, const Call& call, Answerer answerer,
                             std::chrono::milliseconds patience, Done done)
    : bus_(std::move(bus)), owner_(call.owner), done_(std::move(done)) {
  const QString token = newHandleToken();
  listen(handlePath(bus_, "request", token));
  auto options = call.options;
  options.insert(QStringLiteral("handle_token"), token);
  auto message = QDBusMessage::createMethodCall(owner_, QString::fromLatin1(portalPath), call.interface, call.method);
  message.setArguments(QVariantList(call.arguments) << options);
  callMethod(bus_, message, patience, context_, [this](const QDBusMessage& reply) { takeReply(reply); });
  if (answerer == Answerer::portal) QTimer::singleShot(patience, &context_, [this] { finish({}); });
}

PortalRequest::~PortalRequest() {
  if (isOver_) return;
  bus_.send(QDBusMessage::createMethodCall(owner_, path_, requestInterface(), QStringLiteral("Close")));
}

void PortalRequest::listen(const QString& path) {
  path_ = path;
  response_ = std::make_unique<DBusSignal>(
      bus_, DBusSignal::Source{owner_, path_, requestInterface(), QStringLiteral("Response")},
      [this](const QDBusMessage& response) { takeResponse(response); });
}

void PortalRequest::takeReply(const QDBusMessage& reply) {
  if (!done_) return;
  if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("o")) {
    finish({});
    return;
  }
  const QString path = reply.arguments().at(0).value<QDBusObjectPath>().path();
  if (path != path_) listen(path);  // portals before version 0.9 ignore the token
}

void PortalRequest::takeResponse(const QDBusMessage& response) {
  isOver_ = true;
  if (response.signature() != QLatin1String("ua{sv}")) {
    finish({});
    return;
  }
  const auto arguments = response.arguments();
  finish({arguments.at(0).toUInt(), qdbus_cast<QVariantMap>(arguments.at(1))});
}

void PortalRequest::finish(const Answer& answer) {
  const auto done = std::exchange(done_, {});
  if (done) done(answer);
}

}  // namespace tavrelkin
