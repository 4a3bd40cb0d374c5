#include "runtime/toolkit/accessibility/RestingAnnouncement.h"

#include <chrono>
#include <utility>

#include <QTimer>
#include <QWidget>

namespace tavrelkin {

namespace {

constexpr std::chrono::milliseconds kRest{200};

class RestingAnnouncement : public QTimer {
 public:
  explicit RestingAnnouncement(QWidget& widget) : QTimer(&widget) {
    setSingleShot(true);
    callOnTimeout([this] { tell_(); });
  }
  void await(std::function<void()> tell) {
    tell_ = std::move(tell);
    start(kRest);
  }

 private:
  std::function<void()> tell_;
};

RestingAnnouncement& of(QWidget& widget) {
  for (QObject* child : widget.children()) {
    if (auto* waiting = dynamic_cast<RestingAnnouncement*>(child)) return *waiting;
  }
  return *new RestingAnnouncement(widget);
}

}  // namespace

void announceAtRest(QWidget& widget, std::function<void()> tell) {
  of(widget).await(std::move(tell));
}

}  // namespace tavrelkin
