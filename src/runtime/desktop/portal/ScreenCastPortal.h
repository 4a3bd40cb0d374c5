#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <variant>

#include <QDBusConnection>
#include <QString>

#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin {

class CastSession;

// Asks the desktop portal for a cast of all monitors with the pointer as metadata. No operation blocks, and all
// callbacks come from the event loop. Nothing uses the bus before open(). If the bus is not connected, open() reports
// noPortal.
class ScreenCastPortal {
 public:
  enum class Failure {
    refused,    // the user said no
    noPortal,   // there is no bus, no portal, or no portal that casts monitors
    noPointer,  // the portal can't report the pointer; the user was not asked
    failed,     // the portal reported an error, sent a malformed answer, or did not answer in time
  };
  using Result = std::variant<ScreenCast, Failure>;

  enum class Ending {
    session,  // the user or the desktop closed it
    portal,   // the portal or the bus is gone
  };

  // `patience` limits the time of each answer that the portal gives without the user. An answer by the user may take
  // any time.
  explicit ScreenCastPortal(QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::seconds(10));
  ScreenCastPortal(const ScreenCastPortal&) = delete;
  ScreenCastPortal& operator=(const ScreenCastPortal&) = delete;
  ~ScreenCastPortal();

  // Closes an open session, or cancels a request, and then asks for a new session. Calls `done` once, unless close(),
  // another open() or the end of this object comes first. The first time, the user sees a dialog. The portal then
  // issues a token that is valid while the program runs. As long as the portal accepts the token, later calls show no
  // dialog.
  void open(std::function<void(Result)> done);

  // Called once when a session that was passed to `done` ends by itself. The session is already closed then.
  std::function<void(Ending)> closed;

  // Closes the session, or cancels the request and its dialog. Neither `done` nor `closed` is called.
  void close();

  // Forgets the portal's token, so that the next open() asks the user again.
  void forgetToken() { token_.clear(); }

 private:
  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  QString token_;
  std::unique_ptr<CastSession> session_;
};

}  // namespace tavrelkin
