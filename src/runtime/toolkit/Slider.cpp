#include "runtime/toolkit/Slider.h"

#include <utility>

#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSlider>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

namespace {

// A press beside the handle moves it by one page step, even if the button is held.
class SliderWidget : public QSlider {
 public:
  SliderWidget() : QSlider(Qt::Horizontal) {}

  // Whether a change of the value is reported only when the button is released.
  bool isPending() const { return pressing_ && !hasTracking(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const QScopedValueRollback pressing(pressing_, true);
    QSlider::mousePressEvent(event);
    setRepeatAction(SliderNoAction);
  }
  // Qt emits this signal only after a press on the handle.
  void mouseReleaseEvent(QMouseEvent* event) override {
    QSlider::mouseReleaseEvent(event);
    emit sliderReleased();
  }

 private:
  bool pressing_ = false;
};

SliderWidget& sliderOf(const Slider& control) {
  return static_cast<SliderWidget&>(control.native());
}

// The toolkit keeps the value within the range, whichever of them changes.
void silently(Slider& control, void (QAbstractSlider::*set)(int), Int32 value) {
  const QSignalBlocker blocker(control.native());
  (sliderOf(control).*set)(value);
  control.Value.store(sliderOf(control).value());
}

}  // namespace

Slider::Slider(Window& owner, String name)
    : RectControl(owner, std::move(name), new SliderWidget),
      Minimum(0, [this](Int32 v) { silently(*this, &QAbstractSlider::setMinimum, v); }),
      Maximum(100, [this](Int32 v) { silently(*this, &QAbstractSlider::setMaximum, v); }),
      Value(0, [this](Int32 v) { silently(*this, &QAbstractSlider::setValue, v); }),
      LineStep(1, [this](Int32 v) { sliderOf(*this).setSingleStep(v); }),
      PageStep(10, [this](Int32 v) { sliderOf(*this).setPageStep(v); }),
      LiveScroll(true, [this](bool on) { sliderOf(*this).setTracking(on); }) {
  sliderOf(*this).setRange(Minimum, Maximum);
  QObject::connect(&sliderOf(*this), &QSlider::valueChanged, [this] { moved(); });
  QObject::connect(&sliderOf(*this), &QSlider::sliderReleased, [this] { moved(); });
}

void Slider::moved() {
  const SliderWidget& slider = sliderOf(*this);
  if (slider.isPending() || slider.value() == Value) return;
  Value.store(slider.value());
  deliver(ownerWindow(), [this] { ValueChanged(); });
}

}  // namespace tavrelkin
