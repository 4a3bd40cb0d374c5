#include "runtime/toolkit/widgets/ReturnKey.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace tavrelkin {

namespace {

class ReturnKey : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* button, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
    static_cast<QAbstractButton*>(button)->click();
    return true;
  }
};

}  // namespace

void pressByReturn(QAbstractButton& button) {
  button.installEventFilter(new ReturnKey(&button));
}

}  // namespace tavrelkin
