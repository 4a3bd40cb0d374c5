#pragma once

#include <QFocusFrame>

namespace tavrelkin {

// Shows which canvas of a window has the keyboard: a ring around it, outside of its pixels, which belong to the
// program. It comes and goes with the focus; controls of the toolkit show theirs by themselves.
class FocusRing : public QFocusFrame {
 public:
  explicit FocusRing(QWidget& content);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow(QWidget* focus);

  QWidget& content_;
};

}  // namespace tavrelkin
