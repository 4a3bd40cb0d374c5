#include "runtime/toolkit/Rectangle.h"

#include <utility>

#include <QPainter>
#include <QWidget>

#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

namespace {

class RectangleWidget : public QWidget {
 public:
  explicit RectangleWidget(const Rectangle& shown) : shown_(&shown) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    const int w = shown_->BorderWidth;
    QPainter painter(this);
    painter.fillRect(rect(), toQt(shown_->FillColor));
    painter.fillRect(0, 0, width(), w, toQt(shown_->TopLeftColor));
    painter.fillRect(0, 0, w, height(), toQt(shown_->TopLeftColor));
    painter.fillRect(0, height() - w, width(), w, toQt(shown_->BottomRightColor));
    painter.fillRect(width() - w, 0, w, height(), toQt(shown_->BottomRightColor));
  }

 private:
  const Rectangle* shown_;
};

}  // namespace

Rectangle::Rectangle(Window& owner, String name)
    : RectControl(owner, std::move(name), new RectangleWidget(*this)),
      FillColor(kWhite, [this](Color) { native().update(); }),
      TopLeftColor(kBlack, [this](Color) { native().update(); }),
      BottomRightColor(kBlack, [this](Color) { native().update(); }),
      BorderWidth(1, [this](Int32) { native().update(); }) {}

}  // namespace tavrelkin
