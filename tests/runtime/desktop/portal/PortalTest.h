#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include "fakes/RuntimeTest.h"
#include "fakes/portal/FakePortal.h"
#include "fakes/portal/MessageBus.h"

namespace tavrelkin::test {

// The time limit for a portal that answers, and for one that doesn't.
constexpr auto patient = std::chrono::seconds(10);
constexpr auto impatient = std::chrono::milliseconds(100);

// A test with a played portal on a separate bus.
class PortalTest : public RuntimeTest {
 protected:
  // Delivers events until `done` returns true; calls it after each event and every 20 ms. False after five seconds.
  static bool waitUntil(const std::function<bool()>& done) {
    const QDeadlineTimer end(5000);
    QTimer wake;
    wake.start(20);
    while (!done()) {
      if (end.hasExpired()) return false;
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
  }

  MessageBus bus;
  std::optional<FakePortal> portal;
  BusConnection connection{bus.address()};
};

}  // namespace tavrelkin::test
