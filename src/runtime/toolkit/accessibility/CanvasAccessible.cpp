#include "runtime/toolkit/accessibility/CanvasAccessible.h"

#include <algorithm>
#include <utility>

#include <QApplication>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Canvas.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/accessibility/Accessibility.h"
#include "runtime/toolkit/accessibility/CellAccessible.h"
#include "runtime/toolkit/widgets/CanvasWidget.h"
#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

namespace {

QAccessible::Role roleOf(const Accessible* described) {
  if (!described) return QAccessible::Graphic;
  switch (described->role()) {
    case AccessibleRole::slider:
      return QAccessible::Slider;
    case AccessibleRole::button:
      return QAccessible::Button;
    case AccessibleRole::list:
      return QAccessible::List;
    default:
      return QAccessible::Graphic;
  }
}

// False for a control in a folded part of its window.
bool isInSight(const QWidget& widget) {
  return widget.isVisible() && !widget.visibleRegion().isEmpty();
}

bool canBeUsed(const CanvasWidget& widget) {
  const Canvas* canvas = widget.canvas();
  return canvas && canvas->Enabled && isInSight(widget) && !canvas->ownerWindow().blocker() &&
         !QApplication::activeModalWidget();
}

}  // namespace

CanvasAccessible::CanvasAccessible(CanvasWidget& widget) : QAccessibleWidget(&widget), canvas_(widget) {
  if (!described()) return;
  toldName_ = toQt(described()->name());
  toldDescription_ = CanvasAccessible::text(QAccessible::Description);
  seen_ = toldDescription_;
}

CanvasAccessible::~CanvasAccessible() {
  for (const auto& [index, id] : cells_)
    QAccessible::deleteAccessibleInterface(id);
}

Accessible* CanvasAccessible::described() const {
  return canvas_.canvas() ? canvas_.canvas()->accessible() : nullptr;
}

void CanvasAccessible::act(const std::function<void(Accessible&)>& gesture) const {
  Accessible* const described = this->described();
  if (described && canBeUsed(canvas_)) deliver(canvas_.canvas()->ownerWindow(), [&] { gesture(*described); });
}

void CanvasAccessible::actLater(std::function<void(Accessible&)> gesture) const {
  QMetaObject::invokeMethod(
      &canvas_, [this, gesture = std::move(gesture)] { act(gesture); }, Qt::QueuedConnection);
}

QAccessible::Role CanvasAccessible::role() const {
  return roleOf(described());
}

// The widget's own state is not enough: that of a disabled canvas is enabled, so that it takes drops, and that of a
// canvas in a folded part is visible.
QAccessible::State CanvasAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  if (canvas_.canvas() && !canvas_.canvas()->Enabled) state.disabled = true;
  if (!isInSight(canvas_)) state.offscreen = true;
  return state;
}

QString CanvasAccessible::text(QAccessible::Text kind) const {
  if (const Accessible* described = this->described()) {
    String own;
    if (kind == QAccessible::Name) own = described->name();
    if (kind == QAccessible::Description) own = described->description();
    if (!own.empty()) return toQt(own);
  }
  return QAccessibleWidget::text(kind);
}

void* CanvasAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::ValueInterface) return QAccessibleWidget::interface_cast(type);
  return role() == QAccessible::Slider ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
}

int CanvasAccessible::childCount() const {
  const Accessible* const described = this->described();
  return described ? described->cellCount() : 0;
}

QAccessibleInterface* CanvasAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  const auto known = cells_.find(index);
  if (known != cells_.end()) return QAccessible::accessibleInterface(known->second);
  auto* cell = new CellAccessible(*this, canvas_, index);
  cells_.emplace(index, QAccessible::registerAccessibleInterface(cell));
  return cell;
}

QAccessibleInterface* CanvasAccessible::childAt(int x, int y) const {
  for (int i = 0; i < childCount(); ++i) {
    if (QAccessibleInterface* cell = child(i); cell->rect().contains(x, y)) return cell;
  }
  return nullptr;
}

int CanvasAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const CellAccessible*>(child);
  return cell && cell->parent() == this ? cell->index() : -1;
}

QAccessibleInterface* CanvasAccessible::focusChild() const {
  return canvas_.hasFocus() && described() ? child(described()->currentCell()) : nullptr;
}

QStringList CanvasAccessible::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (role() == QAccessible::Slider) names << increaseAction() << decreaseAction();
  if (described() && described()->canBePressed()) names.prepend(pressAction());
  return names;
}

void CanvasAccessible::doAction(const QString& name) {
  if (name == pressAction() && described()) {
    actLater([](Accessible& canvas) {
      if (canvas.canBePressed()) canvas.press();
    });
  } else if (name == increaseAction() || name == decreaseAction()) {
    setCurrentValue(currentValue().toInt() + (name == increaseAction() ? 1 : -1));
  } else {
    QAccessibleWidget::doAction(name);
  }
}

QVariant CanvasAccessible::currentValue() const {
  return described() ? described()->range().value : 0;
}

QVariant CanvasAccessible::maximumValue() const {
  return described() ? described()->range().most : 0;
}

QVariant CanvasAccessible::minimumValue() const {
  return described() ? described()->range().least : 0;
}

void CanvasAccessible::setCurrentValue(const QVariant& value) {
  act([wanted = toInt32(value.toDouble())](Accessible& canvas) {
    const Accessible::Range range = canvas.range();
    canvas.setValue(std::clamp(wanted, range.least, range.most));
  });
}

void CanvasAccessible::announce(CanvasWidget& widget, AccessibleChange change) {
  if (!QAccessible::isActive()) return;
  auto* known = dynamic_cast<CanvasAccessible*>(QAccessible::queryAccessibleInterface(&widget));
  if (!known || !known->described()) return;
  switch (change) {
    case AccessibleChange::value: {
      const int value = known->currentValue().toInt();
      if (std::exchange(known->toldValue_, value) == value) return;
      QAccessibleValueChangeEvent event(&widget, value);
      QAccessible::updateAccessibility(&event);
      known->tellAtRest(false);
      break;
    }
    case AccessibleChange::currentCell:
      known->tellCurrentCell();
      break;
    case AccessibleChange::description:
      known->tellAtRest(false);
      break;
    case AccessibleChange::cells:
      known->tellAtRest(true);
      break;
  }
}

void CanvasAccessible::tell(QAccessible::Event what, int cell) const {
  QAccessibleEvent event(&canvas_, what);
  event.setChild(cell);
  QAccessible::updateAccessibility(&event);
}

void CanvasAccessible::tellCurrentCell() {
  const int current = described()->currentCell();
  const int former = std::exchange(toldCell_, current);
  if (role() == QAccessible::List) {
    if (former != current && child(former)) tell(QAccessible::SelectionRemove, former);
    if (child(current)) tell(QAccessible::Selection, current);
  }
  if (canvas_.hasFocus() && child(current)) tell(QAccessible::Focus, current);
}

void CanvasAccessible::tellAtRest(bool cellsToo) {
  const QString now = text(QAccessible::Description);
  if (std::exchange(seen_, now) == now && !cellsToo) return;
  announceAtRest(canvas_, [this] { tellChanges(); });
}

void CanvasAccessible::tellChanges() {
  if (!described()) return;
  const QString name = toQt(described()->name());  // Qt announces changes of AccessibleName itself
  if (std::exchange(toldName_, name) != name) tell(QAccessible::NameChanged);
  const QString description = text(QAccessible::Description);
  if (std::exchange(toldDescription_, description) != description) tell(QAccessible::DescriptionChanged);
  for (const auto& [index, id] : cells_)
    static_cast<CellAccessible*>(QAccessible::accessibleInterface(id))->tellName();
}

}  // namespace tavrelkin
