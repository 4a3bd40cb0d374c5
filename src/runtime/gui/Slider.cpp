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

// The toolkit keeps the value within the range, whichever of them changes.
void silently(Slider& control, void (QAbstractSlider::*set)(int), Int32 value) {
  const QSignalBlocker blocker(control.native());
  (sliderOf(control).*set)(value);
  control.Value.store(sliderOf(control).value());
}

}  // namespace

Slider::Slider(Window& owner, String name)
    : RectControl(owner, std::move(name), new QSlider(Qt::Horizontal)),
      Minimum(0, [this](Int32 v) { silently(*this, &QAbstractSlider::setMinimum, v); }),
      Maximum(100, [this](Int32 v) { silently(*this, &QAbstractSlider::setMaximum, v); }),
      Value(0, [this](Int32 v) { silently(*this, &QAbstractSlider::setValue, v); }),
      LineStep(1, [this](Int32 v) { sliderOf(*this).setSingleStep(v); }),
      PageStep(10, [this](Int32 v) { sliderOf(*this).setPageStep(v); }),
      LiveScroll(true, [this](bool on) { sliderOf(*this).setTracking(on); }) {
  sliderOf(*this).setRange(Minimum, Maximum);
  QObject::connect(&sliderOf(*this), &QSlider::valueChanged, [this](int value) {
    Value.store(value);
    deliver(ownerWindow(), [this] { ValueChanged(); });
  });
}

}  // namespace tavrelkin
