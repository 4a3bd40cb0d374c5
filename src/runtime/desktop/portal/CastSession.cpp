#include "runtime/desktop/portal/CastSession.h"

#include <utility>

#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QRegularExpression>

#include <fcntl.h>

#include "runtime/desktop/portal/CastStreams.h"
#include "runtime/desktop/portal/DBus.h"

namespace tavrelkin {

namespace {

using Failure = ScreenCastPortal::Failure;

constexpr std::uint32_t monitors = 1;           // a bit of AvailableSourceTypes
constexpr std::uint32_t pointerAsMetadata = 4;  // a bit of AvailableCursorModes
constexpr std::uint32_t whileRunning = 1;       // a value of persist_mode: the permission lasts as long as the program
constexpr std::uint32_t versionWithTokens = 4;

QString castInterface() {
  return QStringLiteral("org.freedesktop.portal.ScreenCast");
}

QString sessionInterface() {
  return QStringLiteral("org.freedesktop.portal.Session");
}

// The object path in `value`, which portals send as a string; empty if it is not a path.
QString pathOf(const QVariant& value) {
  static const QRegularExpression form(QStringLiteral("\\A(/[A-Za-z0-9_]+)+\\z"));
  const bool isTyped = value.metaType() == QMetaType::fromType<QDBusObjectPath>();
  const QString path = isTyped ? value.value<QDBusObjectPath>().path() : value.toString();
  return form.match(path).hasMatch() ? path : QString();
}

}  // namespace

CastSession::CastSession(QDBusConnection bus, std::chrono::milliseconds patience, QString& token, Done done,
                         Ended ended)
    : bus_(std::move(bus)), patience_(patience), token_(token), done_(std::move(done)), ended_(std::move(ended)) {
  findPortal(bus_, castInterface(), patience_, context_, [this](const PortalInterface& found) { takePortal(found); });
}

CastSession::~CastSession() {
  request_.reset();
  if (path_.isEmpty()) return;
  bus_.send(QDBusMessage::createMethodCall(portal_.owner, path_, sessionInterface(), QStringLiteral("Close")));
}

void CastSession::takePortal(const PortalInterface& portal) {
  portal_ = portal;
  if (portal.state == PortalInterface::State::silent) {
    finish(Failure::failed);
  } else if (portal.state == PortalInterface::State::absent || !(portal.number("AvailableSourceTypes") & monitors)) {
    finish(Failure::noPortal);
  } else if (!(portal.number("AvailableCursorModes") & pointerAsMetadata)) {
    finish(Failure::noPointer);
  } else {
    watch_.emplace(bus_, portal.owner, [this] { end(ScreenCastPortal::Ending::portal); });
    create();
  }
}

// The program knows the session's path before the portal answers, so it can close the session at any time.
void CastSession::create() {
  const QString token = newHandleToken();
  listen(handlePath(bus_, "session", token));
  ask(QStringLiteral("CreateSession"), {}, {{QStringLiteral("session_handle_token"), token}},
      PortalRequest::Answerer::portal, &CastSession::selectSources);
}

void CastSession::selectSources(const QVariantMap& created) {
  const QString path = pathOf(created.value(QStringLiteral("session_handle")));
  if (path.isEmpty()) {
    finish(Failure::failed);
    return;
  }
  if (path != path_) listen(path);
  QVariantMap options{{QStringLiteral("types"), monitors},
                      {QStringLiteral("multiple"), true},
                      {QStringLiteral("cursor_mode"), pointerAsMetadata}};
  if (portal_.number("version") >= versionWithTokens) {
    options.insert(QStringLiteral("persist_mode"), whileRunning);
    if (!token_.isEmpty()) options.insert(QStringLiteral("restore_token"), token_);
  }
  ask(QStringLiteral("SelectSources"), {QVariant::fromValue(QDBusObjectPath(path_))}, options,
      PortalRequest::Answerer::portal, &CastSession::start);
}

void CastSession::start(const QVariantMap&) {
  ask(QStringLiteral("Start"), {QVariant::fromValue(QDBusObjectPath(path_)), QString()}, {},
      PortalRequest::Answerer::user, &CastSession::openRemote);
}

void CastSession::openRemote(const QVariantMap& started) {
  auto streams = castStreams(started.value(QStringLiteral("streams")));
  if (!streams) {
    finish(Failure::failed);
    return;
  }
  streams_ = std::move(*streams);
  token_ = started.value(QStringLiteral("restore_token")).toString();
  auto call = QDBusMessage::createMethodCall(portal_.owner, QString::fromLatin1(portalPath), castInterface(),
                                             QStringLiteral("OpenPipeWireRemote"));
  call << QVariant::fromValue(QDBusObjectPath(path_)) << QVariantMap();
  callMethod(bus_, call, patience_, context_, [this](const QDBusMessage& reply) { takeRemote(reply); });
}

void CastSession::takeRemote(const QDBusMessage& reply) {
  const bool hasDescriptor = reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("h");
  const int borrowed = hasDescriptor ? reply.arguments().at(0).value<QDBusUnixFileDescriptor>().fileDescriptor() : -1;
  FileDescriptor own(fcntl(borrowed, F_DUPFD_CLOEXEC, 0));
  if (own.get() < 0)
    finish(Failure::failed);
  else
    finish(ScreenCast{std::move(streams_), std::move(own)});
}

void CastSession::ask(const QString& method, const QVariantList& arguments, const QVariantMap& options,
                      PortalRequest::Answerer answerer, Next next) {
  const auto take = [this, next](const PortalRequest::Answer& answer) {
    if (answer.code == PortalRequest::Answer::granted)
      (this->*next)(answer.results);
    else
      finish(answer.code == PortalRequest::Answer::refused ? Failure::refused : Failure::failed);
  };
  const PortalRequest::Call call{portal_.owner, castInterface(), method, arguments, options};
  request_ = std::make_unique<PortalRequest>(bus_, call, answerer, patience_, take);
}

void CastSession::listen(const QString& path) {
  path_ = path;
  closed_.emplace(bus_, DBusSignal::Source{portal_.owner, path_, sessionInterface(), QStringLiteral("Closed")},
                  [this](const QDBusMessage&) { end(ScreenCastPortal::Ending::session); });
}

void CastSession::finish(ScreenCastPortal::Result result) {
  const auto done = std::exchange(done_, {});
  done(std::move(result));
}

void CastSession::end(ScreenCastPortal::Ending ending) {
  path_.clear();
  if (done_) {
    finish(Failure::failed);
    return;
  }
  const auto ended = std::exchange(ended_, {});
  if (ended) ended(ending);
}

}  // namespace tavrelkin
