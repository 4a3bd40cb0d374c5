#pragma once

#include <functional>
#include <map>

#include <QAccessibleWidget>

namespace tavrelkin {

class Accessible;
class CanvasWidget;
class CellAccessible;
enum class AccessibleChange;

// A canvas as assistive technologies meet it: passes their questions on to what the canvas says of itself, and what
// they do to it as the user's gestures.
class CanvasAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit CanvasAccessible(CanvasWidget& widget);
  ~CanvasAccessible() override;

  // Tells them of a change; costs a look at a flag while there are none.
  static void announce(CanvasWidget& widget, AccessibleChange change);

  // What the canvas says of itself, or null.
  Accessible* described() const;

  // Does something as a gesture of the user: now, or when the event loop comes round to it, for what may open a dialog.
  // Nothing is done where the user could not do it by hand: in a canvas that is disabled or out of sight, or behind a
  // modal window.
  void act(const std::function<void(Accessible&)>& gesture) const;
  void actLater(std::function<void(Accessible&)> gesture) const;

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override { return 1; }

 private:
  void tellCurrentCell();
  // Has what has changed since the last time told when it has come to rest.
  void tellAtRest(bool cellsToo);
  void tellChanges();
  void tell(QAccessible::Event what, int cell = -1) const;

  CanvasWidget& canvas_;
  mutable std::map<int, QAccessible::Id> cells_;  // those that were asked for
  QString seen_;                                  // the description at the last announcement
  QString toldName_, toldDescription_;
  int toldValue_ = -1;
  int toldCell_ = -1;
};

}  // namespace tavrelkin
