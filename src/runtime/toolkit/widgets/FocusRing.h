#pragma once

#include <QFocusFrame>

namespace tavrelkin {

// A ring around the canvas that has the keyboard focus. It lies outside of the canvas's pixels, which are the
// program's, and follows the focus. Other controls show the focus themselves.
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
