#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace tavrelkin {

class DBusSignal;

// Makes a token that no other request or session of this program uses. The portal builds object paths with it.
QString newHandleToken();

// The object path of a "request" or a "session" (`kind`) of this connection with the token.
QString handlePath(const QDBusConnection& bus, const char* kind, const QString& token);

// A call that the portal answers twice: at once with the path of a request object, and later by that object's signal
// Response. The constructor makes the call; the destructor cancels it if the Response has not come yet.
class PortalRequest {
 public:
  struct Call {
    QString owner;  // the unique name of the portal's process
    QString interface;
    QString method;
    QVariantList arguments;  // all except the last, which is `options`
    QVariantMap options;     // without the handle token
  };

  enum class Answerer { portal, user };

  struct Answer {
    static constexpr std::uint32_t granted = 0;
    static constexpr std::uint32_t refused = 1;
    static constexpr std::uint32_t failed = 2;  // also for an error, a malformed answer, or no answer in time

    std::uint32_t code = failed;
    QVariantMap results;
  };
  using Done = std::function<void(const Answer&)>;

  // `patience` limits the time until the Response if the portal itself answers, and until the first answer if the user
  // does. `done` is called once, from the event loop, and may destroy this object.
  PortalRequest(QDBusConnection bus, const Call& call, Answerer answerer, std::chrono::milliseconds patience,
                Done done);
  PortalRequest(const PortalRequest&) = delete;
  PortalRequest& operator=(const PortalRequest&) = delete;
  ~PortalRequest();

 private:
  void listen(const QString& path);
  void takeReply(const QDBusMessage& reply);
  void takeResponse(const QDBusMessage& response);
  void finish(const Answer& answer);

  QDBusConnection bus_;
  QString owner_;
  QString path_;
  std::unique_ptr<DBusSignal> response_;
  Done done_;
  bool isOver_ = false;  // the portal has sent the Response
  QObject context_;      // drops replies and timeouts that come after the end of this object
};

}  // namespace tavrelkin
