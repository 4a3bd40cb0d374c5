#pragma once

#include <QObject>

namespace tavrelkin {

// The Option key as far as the toolkit knows it. AltGr, which the toolkit doesn't count among the modifiers, is
// followed by the presses and releases that reach the program; it counts as released once another program has come to
// the front.
class ToolkitOptionKey : public QObject {
 public:
  ToolkitOptionKey();

  // Whether Alt or AltGr is held down.
  bool isDown() const;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool isAltGrDown_ = false;
};

}  // namespace tavrelkin
