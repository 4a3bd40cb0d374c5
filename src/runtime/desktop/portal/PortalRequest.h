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

// A word that no other request or session of this program has, for their names in the portal.
QString newHandleToken();

// The path that the portal gives to a "request" or a "session" of this connection with the token.
QString handlePath(const QDBusConnection& bus, const char* kind, const QString& token);

// A call of the portal that it answers twice: at once with the path of a request, and by the request's signal Response
// when all is done. The call is made by the constructor, and taken back by the destructor if it is not answered by
// then.
class PortalRequest {
 public:
  struct Call {
    QString owner;  // of the portal
    QString interface;
    QString method;
    QVariantList arguments;  // all but the last, which are the options
    QVariantMap options;     // without the handle token
  };

  enum class Answerer { portal, user };

  struct Answer {
    static constexpr std::uint32_t granted = 0;
    static constexpr std::uint32_t refused = 1;
    static constexpr std::uint32_t failed = 2;  // also for an error, a malformed answer, or none in time

    std::uint32_t code = failed;
    QVariantMap results;
  };
  using Done = std::function<void(const Answer&)>;

  // `patience` is how long the portal may take, to the Response if that is the portal's, else to its first answer.
  // `done` is called once, from the event loop, and may destroy this object.
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
  bool isOver_ = false;  // for the portal: the Response has come
  QObject context_;      // drops replies and time limits that are still due when the object ends
};

}  // namespace tavrelkin
