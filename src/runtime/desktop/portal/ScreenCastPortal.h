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

// Asks the desktop portal for a cast of all monitors with the pointer as metadata. Nothing here blocks, and all calls
// back come from the event loop. The bus is first used by open(), and may be one that is not connected.
class ScreenCastPortal {
 public:
  enum class Failure {
    refused,    // the user said no
    noPortal,   // there is no bus, no portal, or none that casts monitors
    noPointer,  // the portal can't give the pointer; the user was not asked
    failed,     // the portal reported an error, gave a malformed answer, or none in time
  };
  using Result = std::variant<ScreenCast, Failure>;

  enum class Ending {
    session,  // the user or the desktop closed it
    portal,   // the portal or the bus has gone
  };

  // `patience` is how long the portal may take for what it answers without the user. The user may take any time.
  explicit ScreenCastPortal(QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::seconds(10));
  ScreenCastPortal(const ScreenCastPortal&) = delete;
  ScreenCastPortal& operator=(const ScreenCastPortal&) = delete;
  ~ScreenCastPortal();

  // Closes what is open or asked for, then asks. Calls `done` once, unless close(), another open() or the end of this
  // object comes first. The first time, the user sees a dialog; after that none, as long as the token holds, which the
  // portal gave for the time that the program runs.
  void open(std::function<void(Result)> done);

  // Called when a session that `done` was given has ended by itself, once for each. It is closed by then.
  std::function<void(Ending)> closed;

  // Closes the session, or takes the question back, and with it the dialog. Neither `done` nor `closed` is called.
  void close();

  // Lets the next open() ask the user again.
  void forgetToken() { token_.clear(); }

 private:
  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  QString token_;
  std::unique_ptr<CastSession> session_;
};

}  // namespace tavrelkin
