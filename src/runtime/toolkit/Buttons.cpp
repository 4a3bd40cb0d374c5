#include "runtime/toolkit/Buttons.h"

#include <utility>

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

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

// Makes Return and Enter press the button while it has the keyboard focus, as the space bar does. HeldKeys drops the
// auto-repeats of a held key.
void pressByReturn(QAbstractButton& button) {
  button.installEventFilter(new ReturnKey(&button));
}

QToolButton* makeButton() {
  auto* button = new QToolButton;
  button->setAutoRaise(true);
  button->setArrowType(Qt::RightArrow);
  pressByReturn(*button);
  return button;
}

}  // namespace

PushButton::PushButton(Window& owner, String name)
    : RectControl(owner, std::move(name), new QPushButton),
      Caption({}, [this](const String& text) { static_cast<QPushButton&>(native()).setText(toQt(text)); }) {
  auto* button = static_cast<QPushButton*>(&native());
  button->setFont(fontFor("System", 12, false));
  button->setAutoDefault(false);
  pressByReturn(*button);
  QObject::connect(button, &QPushButton::clicked, [this] { deliver(ownerWindow(), [this] { Action(); }); });
}

DisclosureTriangle::DisclosureTriangle(Window& owner, String name)
    : RectControl(owner, std::move(name), makeButton()), Value(false, [this](bool open) {
        static_cast<QToolButton&>(native()).setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
      }) {
  QObject::connect(static_cast<QToolButton*>(&native()), &QToolButton::clicked, [this] {
    Value = !Value;
    deliver(ownerWindow(), [this] { Action(); });
  });
}

}  // namespace tavrelkin
