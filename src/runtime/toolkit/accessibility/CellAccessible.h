#pragma once

#include <QAccessible>

namespace tavrelkin {

class CanvasAccessible;

// The accessible interface of one cell of a canvas. The canvas's interface owns it. It is valid while the canvas has a
// cell with its index.
class CellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  // `widget` is the canvas's widget.
  CellAccessible(const CanvasAccessible& canvas, QObject& widget, int index)
      : canvas_(canvas), widget_(widget), index_(index) {}

  int index() const { return index_; }

  // Announces the name if it has changed since it was last read.
  void tellName();

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override;
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  bool isCurrent() const;

  const CanvasAccessible& canvas_;
  QObject& widget_;
  int index_;
  mutable QString told_;
};

}  // namespace tavrelkin
