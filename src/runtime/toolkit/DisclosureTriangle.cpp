#include "runtime/toolkit/DisclosureTriangle.h"

#include <utility>

#include <QToolButton>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/ReturnKey.h"

namespace tavrelkin {

namespace {

QToolButton* makeButton() {
  auto* button = new QToolButton;
  button->setAutoRaise(true);
  button->setArrowType(Qt::RightArrow);
  pressByReturn(*button);
  return button;
}

}  // namespace

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
