#include "runtime/gui/Slider.h"

#include <utility>

#include <QSignalBlocker>
#include <QSlider>

#include "runtime/qt/Delivery.h"

namespace tavrelkin {

namespace {

QSlider& sliderOf(const Slider& control) {
  return static_cast<QSlider&>(control.native());
}

void silently(const Slider& control, void (QAbstractSlider::*set)(int), Int32 value) {
  const QSignalBlocker blocker(control.native());
  (sliderOf(control).*set)(value);
}

}  // namespace

Slider::Slider(Window& owner, String name)
    : RectControl(owner, std::move(name), new QSlider(Qt::Horizontal)),
      Minimum(0, [this](Int32 v) { silently(*this, &QAbstractSlider::setMinimum, v); }),
      Maximum(100, [this](Int32 v) { silently(*this, &QAbstractSlider::setMaximum, v); }),
      Value(0,
            [this](Int32 v) {
              silently(*this, &QAbstractSlider::setValue, v);
              Value.store(sliderOf(*this).value());
            }),
      LineStep(1, [this](Int32 v) { sliderOf(*this).setSingleStep(v); }),
      PageStep(10, [this](Int32 v) { sliderOf(*this).setPageStep(v); }),
      LiveScroll(true, [this](bool on) { sliderOf(*this).setTracking(on); }) {
  QObject::connect(&sliderOf(*this), &QSlider::valueChanged, [this](int value) {
    Value.store(value);
    deliver(ownerWindow(), [this] { ValueChanged(); });
  });
}

}  // namespace tavrelkin
