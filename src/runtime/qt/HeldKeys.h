#pragma once

#include <QObject>

class QKeyEvent;

namespace tavrelkin {

// Has the keys that a user holds down be known as such, as a filter on the events of all windows. Such a key comes as a
// release and a press of one time, by which it is told here where the toolkit, which looks for the press while it may
// still be under way, has missed it. Return and Enter reach a window once however long they are held: a press may open
// a dialog, whose own button the next would press. Two strokes within one millisecond, which no hand makes, count as
// one key that is held.
class HeldKeys : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool isHeld(const QKeyEvent& press) const;

  quint32 releasedCode_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace tavrelkin
