#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include "runtime/desktop/portal/DBus.h"
#include "runtime/desktop/portal/PortalInterface.h"
#include "runtime/desktop/portal/PortalRequest.h"
#include "runtime/desktop/portal/ScreenCastPortal.h"

namespace tavrelkin {

// One session of the portal's interface ScreenCast, from the first request to its end. The destructor closes it.
class CastSession {
 public:
  using Done = std::function<void(ScreenCastPortal::Result)>;
  using Ended = std::function<void(ScreenCastPortal::Ending)>;

  // If `token` is not empty, it reopens an earlier session without a dialog. A token is valid for one session; the
  // session replaces it with the token for the next one, so the string must outlive this object. `done` is called once.
  // `ended` is called at most once, after `done` has received a cast. Both are called from the event loop, and may
  // destroy this object.
  CastSession(QDBusConnection bus, std::chrono::milliseconds patience, QString& token, Done done, Ended ended);
  CastSession(const CastSession&) = delete;
  CastSession& operator=(const CastSession&) = delete;
  ~CastSession();

 private:
  using Next = void (CastSession::*)(const QVariantMap& results);

  // The steps, in order.
  void takePortal(const PortalInterface& portal);
  void create();
  void selectSources(const QVariantMap& created);
  void start(const QVariantMap& selected);
  void openRemote(const QVariantMap& started);
  void takeRemote(const QDBusMessage& reply);

  // Sends a request to the portal. If it is granted, the session continues with `next`; otherwise the session ends.
  void ask(const QString& method, const QVariantList& arguments, const QVariantMap& options,
           PortalRequest::Answerer answerer, Next next);
  void listen(const QString& path);
  void finish(ScreenCastPortal::Result result);
  void end(ScreenCastPortal::Ending ending);

  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  QString& token_;
  Done done_;
  Ended ended_;
  PortalInterface portal_;
  QString path_;  // the path of the session's object; empty while there is no session
  std::vector<CastStream> streams_;
  std::optional<PortalWatch> watch_;
  std::optional<DBusSignal> closed_;
  std::unique_ptr<PortalRequest> request_;
  QObject context_;  // drops replies that come after the end of this object
};

}  // namespace tavrelkin
