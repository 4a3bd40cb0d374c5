#pragma once

#include <QObject>

class QKeyEvent;

namespace tavrelkin {

// Marks auto-repeated key presses, as an event filter of the application. X11 sends a held key as a release and a press
// with the same timestamp. If Qt handles the release before the press has arrived, it does not recognise the pair, and
// the press looks like a new press.
//
// A marked press reaches the window, but triggers no shortcut. A press with a command key (Ctrl, Alt, Meta) is dropped,
// so a command acts once while its key is held. Return and Enter are dropped too: the first press may open a dialog,
// and the next one would press its button.
//
// Two strokes of a key within one millisecond count as auto-repeat. No hand is that fast.
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
