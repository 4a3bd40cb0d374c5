#include "runtime/desktop/portal/ColorPickerPortal.h"

#include <array>
#include <cmath>
#include <utility>

#include "runtime/desktop/portal/DBus.h"
#include "runtime/desktop/portal/PortalInterface.h"
#include "runtime/desktop/portal/PortalRequest.h"

namespace tavrelkin {

namespace {

constexpr std::uint32_t versionWithPicker = 2;

QString screenshotInterface() {
  return QStringLiteral("org.freedesktop.portal.Screenshot");
}

bool hasPicker(const PortalInterface& portal) {
  return portal.state == PortalInterface::State::there && portal.number("version") >= versionWithPicker;
}

// 0xRRGGBB from three numbers from 0 to 1, (ddd); nothing if `value` holds anything else.
std::optional<std::uint32_t> colorOf(const QVariant& value) {
  const auto argument = argumentOf(value, "(ddd)");
  if (!argument) return std::nullopt;
  std::array<double, 3> channels{};
  argument->beginStructure();
  *argument >> channels[0] >> channels[1] >> channels[2];
  argument->endStructure();
  std::uint32_t result = 0;
  for (const double channel : channels) {
    if (!(channel >= 0 && channel <= 1)) return std::nullopt;  // also refuses NaN
    result = (result << 8) | static_cast<std::uint32_t>(std::lround(channel * 255));
  }
  return result;
}

}  // namespace

struct ColorPickerPortal::Pick {
  std::function<void(std::optional<std::uint32_t>)> done;
  std::optional<PortalWatch> watch;
  std::unique_ptr<PortalRequest> request;
  QObject context;
};

ColorPickerPortal::ColorPickerPortal(QDBusConnection bus, std::chrono::milliseconds patience)
    : bus_(std::move(bus)), patience_(patience) {}

ColorPickerPortal::~ColorPickerPortal() = default;

void ColorPickerPortal::askAvailable(std::function<void(bool)> done) {
  findPortal(bus_, screenshotInterface(), patience_, context_,
             [done = std::move(done)](const PortalInterface& portal) { done(hasPicker(portal)); });
}

void ColorPickerPortal::pick(std::function<void(std::optional<std::uint32_t>)> done) {
  cancel();
  pick_ = std::make_unique<Pick>();
  pick_->done = std::move(done);
  findPortal(bus_, screenshotInterface(), patience_, pick_->context,
             [this](const PortalInterface& portal) { ask(portal); });
}

void ColorPickerPortal::ask(const PortalInterface& portal) {
  if (!hasPicker(portal)) {
    finish({});
    return;
  }
  pick_->watch.emplace(bus_, portal.owner, [this] { finish({}); });
  const PortalRequest::Call call{
      portal.owner, screenshotInterface(), QStringLiteral("PickColor"), {QString()} /* no parent window */, {}};
  const auto take = [this](const PortalRequest::Answer& answer) {
    const bool isGranted = answer.code == PortalRequest::Answer::granted;
    finish(isGranted ? colorOf(answer.results.value(QStringLiteral("color"))) : std::nullopt);
  };
  pick_->request = std::make_unique<PortalRequest>(bus_, call, PortalRequest::Answerer::user, patience_, take);
}

void ColorPickerPortal::finish(std::optional<std::uint32_t> color) {
  const auto pick = std::exchange(pick_, {});
  pick->done(color);
}

void ColorPickerPortal::cancel() {
  pick_.reset();
}

}  // namespace tavrelkin
