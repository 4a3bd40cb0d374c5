#include "runtime/toolkit/accessibility/Accessibility.h"

#include <chrono>
#include <utility>

#include <QAccessibleWidget>
#include <QTimer>

#include "runtime/toolkit/accessibility/CanvasAccessible.h"
#include "runtime/toolkit/widgets/CanvasWidget.h"
#include "runtime/toolkit/widgets/TextLabel.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin {

namespace {

// The accessible name of a label is its text, unless it has an AccessibleName.
class LabelAccessible : public QAccessibleWidget {
 public:
  explicit LabelAccessible(TextLabel& label) : QAccessibleWidget(&label, QAccessible::StaticText) {}

  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? static_cast<TextLabel*>(object())->text() : own;
  }
};

QAccessible::Role roleOf(const WindowWidget& window) {
  return window.isDialog() ? QAccessible::Dialog : QAccessible::Window;
}

// The factory for Qt, which takes ownership. Null leaves the object to Qt's own factories.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  if (auto* canvas = dynamic_cast<CanvasWidget*>(object)) return new CanvasAccessible(*canvas);
  if (auto* label = dynamic_cast<TextLabel*>(object)) return new LabelAccessible(*label);
  if (auto* window = dynamic_cast<WindowWidget*>(object)) return new QAccessibleWidget(window, roleOf(*window));
  return nullptr;
}

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

void installAccessibility() {
  QAccessible::installFactory(makeInterface);
}

void announceAtRest(QWidget& widget, std::function<void()> tell) {
  of(widget).await(std::move(tell));
}

}  // namespace tavrelkin
