#include "runtime/toolkit/Shapes.h"

#include <algorithm>
#include <cstdlib>
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

class LineWidget : public QWidget {
 public:
  explicit LineWidget(const Line& shown) : shown_(&shown) { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent*) override {
    const qreal half = shown_->BorderWidth / 2.0;
    QPainter painter(this);
    painter.translate(QPointF(half - x(), half - y()));
    painter.setPen(QPen(toQt(shown_->LineColor), shown_->BorderWidth));
    painter.drawLine(QLineF(shown_->X1, shown_->Y1, shown_->X2, shown_->Y2));
  }

 private:
  const Line* shown_;
};

}  // namespace

Rectangle::Rectangle(Window& owner, String name)
    : RectControl(owner, std::move(name), new RectangleWidget(*this)),
      FillColor(kWhite, [this](Color) { native().update(); }),
      TopLeftColor(kBlack, [this](Color) { native().update(); }),
      BottomRightColor(kBlack, [this](Color) { native().update(); }),
      BorderWidth(1, [this](Int32) { native().update(); }) {}

Line::Line(Window& owner, String name)
    : RectControl(owner, std::move(name), new LineWidget(*this)),
      X1(0, [this](Int32) { followPoints(); }),
      Y1(0, [this](Int32) { followPoints(); }),
      X2(0, [this](Int32) { followPoints(); }),
      Y2(0, [this](Int32) { followPoints(); }),
      BorderWidth(1, [this](Int32) { followPoints(); }),
      LineColor(kBlack, [this](Color) { native().update(); }) {}

void Line::setPoints(Int32 x1, Int32 y1, Int32 x2, Int32 y2) {
  X1.store(x1);
  Y1.store(y1);
  X2.store(x2);
  Y2.store(y2);
  followPoints();
}

void Line::followPoints() {
  place(std::min(X1.get(), X2.get()), std::min(Y1.get(), Y2.get()), std::abs(X2 - X1), std::abs(Y2 - Y1));
  native().update();
}

// The widget of a horizontal or vertical line still needs room for the width of the line.
void Line::resized() {
  native().resize(Width + BorderWidth, Height + BorderWidth);
}

}  // namespace tavrelkin
