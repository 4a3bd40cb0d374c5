#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include "support/RuntimeTest.h"
#include "support/portal/FakePortal.h"
#include "support/portal/MessageBus.h"

namespace tavrelkin::test {

// How long a portal may take that answers, and that doesn't.
constexpr auto patient = std::chrono::seconds(10);
constexpr auto impatient = std::chrono::milliseconds(100);

// A test against a played portal on a bus of its own.
class PortalTest : public RuntimeTest {
 protected:
  // Delivers events until `done` says so, and wakes with each of them. False after five seconds in vain.
  static bool waitUntil(const std::function<bool()>& done) {
    bool isOver = false;
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, [&] { isOver = true; });
    limit.start(5000);
    while (!done() && !isOver)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return done();
  }

  MessageBus bus;
  std::optional<FakePortal> portal;
  BusConnection connection{bus.address()};
};

}  // namespace tavrelkin::test
