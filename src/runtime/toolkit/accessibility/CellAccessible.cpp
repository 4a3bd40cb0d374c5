#include "runtime/toolkit/accessibility/CellAccessible.h"

#include "runtime/toolkit/Accessible.h"
#include "runtime/toolkit/accessibility/CanvasAccessible.h"
#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

bool CellAccessible::isValid() const {
  return canvas_.isValid() && index_ < canvas_.childCount();
}

QAccessibleInterface* CellAccessible::parent() const {
  return QAccessible::queryAccessibleInterface(&widget_);
}

bool CellAccessible::isCurrent() const {
  return isValid() && canvas_.described()->currentCell() == index_;
}

QAccessible::Role CellAccessible::role() const {
  return canvas_.role() == QAccessible::List ? QAccessible::ListItem : QAccessible::Button;
}

QAccessible::State CellAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const QAccessible::State whole = canvas_.state();
  state.disabled = whole.disabled;
  state.invisible = whole.invisible;
  state.offscreen = whole.offscreen;
  state.focusable = whole.focusable;
  state.focused = whole.focused && isCurrent();
  state.selectable = role() == QAccessible::ListItem;
  state.selected = state.selectable && isCurrent();
  return state;
}

QString CellAccessible::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Name || !isValid()) return {};
  told_ = toQt(canvas_.described()->cell(index_).name);
  return told_;
}

void CellAccessible::tellName() {
  const QString before = told_;
  if (!isValid() || text(QAccessible::Name) == before) return;
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

QRect CellAccessible::rect() const {
  if (!isValid()) return {};
  const Accessible::Cell cell = canvas_.described()->cell(index_);
  return QRect(cell.left, cell.top, cell.width, cell.height).translated(canvas_.rect().topLeft());
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList CellAccessible::actionNames() const {
  return {pressAction()};
}

void CellAccessible::doAction(const QString& name) {
  if (name != pressAction()) return;
  canvas_.actLater([index = index_](Accessible& canvas) {
    if (index < canvas.cellCount()) canvas.pressCell(index);
  });
}

}  // namespace tavrelkin
