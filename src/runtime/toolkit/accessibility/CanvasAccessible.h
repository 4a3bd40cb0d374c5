#pragma once

#include <functional>
#include <map>

#include <QAccessibleWidget>

namespace tavrelkin {

class Accessible;
class CanvasWidget;
class CellAccessible;
enum class AccessibleChange;

// The accessible interface of a canvas. It passes queries on to the canvas's Accessible, and also actions, which count
// as gestures of the user.
class CanvasAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit CanvasAccessible(CanvasWidget& widget);
  ~CanvasAccessible() override;

  // Announces a change. While no assistive technology runs, this only reads a flag.
  static void announce(CanvasWidget& widget, AccessibleChange change);

  // The canvas's Accessible, or null.
  Accessible* described() const;

  // Call `gesture` as a gesture of the user: now, or from the event loop if it may open a dialog. They do nothing if
  // the user could not do the same with the mouse or a key: in a disabled or invisible canvas, or while a modal window
  // blocks.
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
  // Calls tellChanges() when no more changes follow for a moment. Does nothing if the description is the same, unless
  // `cellsToo` is set.
  void tellAtRest(bool cellsToo);
  void tellChanges();
  void tell(QAccessible::Event what, int cell = -1) const;

  CanvasWidget& canvas_;
  mutable std::map<int, QAccessible::Id> cells_;  // the interfaces made so far, by index
  QString seen_;                                  // the description at the last announcement
  QString toldName_, toldDescription_;
  int toldValue_ = -1;
  int toldCell_ = -1;
};

}  // namespace tavrelkin
