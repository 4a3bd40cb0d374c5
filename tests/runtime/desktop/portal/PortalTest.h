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

// How long a portal may take that answers, and that doesn't.
constexpr auto patient = std::chrono::seconds(10);
constexpr auto impatient = std::chrono::milliseconds(100);

// A test against a played portal on a bus of its own.
class PortalTest : public RuntimeTest {
 protected:
  // Delivers events until `done` says so, which is asked after each of them and every 20 ms. False after five seconds
  // in vain.
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
