#include "runtime/desktop/portal/ScreenCastPortal.h"

#include <utility>

#include "runtime/desktop/portal/CastSession.h"

namespace tavrelkin {

ScreenCastPortal::ScreenCastPortal(QDBusConnection bus, std::chrono::milliseconds patience)
    : bus_(std::move(bus)), patience_(patience) {}

ScreenCastPortal::~ScreenCastPortal() = default;

void ScreenCastPortal::open(std::function<void(Result)> done) {
  close();
  const auto take = [this, done = std::move(done)](Result result) {
    if (std::holds_alternative<Failure>(result)) close();
    done(std::move(result));
  };
  const auto end = [this](Ending ending) {
    close();
    const auto call = closed;  // a copy, since the call may change it
    if (call) call(ending);
  };
  session_ = std::make_unique<CastSession>(bus_, patience_, token_, take, end);
}

void ScreenCastPortal::close() {
  session_.reset();
}

}  // namespace tavrelkin
