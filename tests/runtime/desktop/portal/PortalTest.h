#pragma once

#include <chrono>
#include <optional>

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
  MessageBus bus;
  std::optional<FakePortal> portal;
  BusConnection connection{bus.address()};
};

}  // namespace tavrelkin::test
