#include "runtime/toolkit/PushButton.h"

#include <utility>

#include <QPushButton>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"
#include "runtime/toolkit/widgets/ReturnKey.h"

namespace tavrelkin {

PushButton::PushButton(Window& owner, String name)
    : RectControl(owner, std::move(name), new QPushButton),
      Caption({}, [this](const String& text) { static_cast<QPushButton&>(native()).setText(toQt(text)); }) {
  auto* button = static_cast<QPushButton*>(&native());
  button->setFont(fontFor("System", 12, false));
  button->setAutoDefault(false);
  pressByReturn(*button);
  QObject::connect(button, &QPushButton::clicked, [this] { deliver(ownerWindow(), [this] { Action(); }); });
}

}  // namespace tavrelkin
