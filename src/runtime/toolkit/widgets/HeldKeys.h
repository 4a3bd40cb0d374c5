#pragma once

#include <QObject>

class QKeyEvent;

namespace tavrelkin {

// Marks the presses of a key that is held down as auto-repeats, as a filter on the events of all windows. Auto-repeat
// comes as a release and a press with the same timestamp. The toolkit misses it where it looks at the release before
// the press has arrived. A press that it missed reaches the window as an auto-repeat, and no shortcut. With a command
// key it is dropped: a command acts once for a press, however long. Return and Enter reach a window once, too: a press
// may open a dialog, whose own button the next would press. Two strokes of a key within one millisecond, which no hand
// makes, count as auto-repeat.
class HeldKeys : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool isHeld(const QKeyEvent& press) const;
  bool overridesShortcut(QKeyEvent& press) const;
  bool replacesPress(QObject& receiver, const QKeyEvent& press) const;

  quint32 releasedCode_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace tavrelkin
