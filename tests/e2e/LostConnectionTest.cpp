#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "e2e/Eventually.h"
#include "e2e/X11Client.h"
#include "e2e/support/XServer.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin::test {
namespace {

// By the event loop, by a read, and by a question; a write to a closed socket must not end the process.
TEST(LostConnectionTest, IsToldOnceHoweverItIsFound) {
  int losses = 0;
  const std::function<void(ScreenReader&)> ways[] = {
      [&](ScreenReader&) { EXPECT_TRUE(eventually([&] { return losses > 0; })); },
      [](ScreenReader& reader) {
        reader.beginTurn();
        reader.pixel({10, 10});
      },
      [](ScreenReader& reader) { EXPECT_FALSE(reader.optionKey()); },
  };
  for (const auto& find : ways) {
    losses = 0;
    XServer server;
    X11Client(server.display()).movePointer(123, 45);
    const QByteArray usual = qgetenv("DISPLAY");
    qputenv("DISPLAY", server.display().c_str());
    const auto reader = makeX11ScreenReader([&](const std::string& message) { losses += message.empty() ? 100 : 1; });
    qputenv("DISPLAY", usual);
    ASSERT_TRUE(reader);
    ASSERT_EQ(reader->pointer(), (ScreenPoint{123, 45}));

    server.kill();
    find(*reader);
    EXPECT_EQ(losses, 1);
    for (int turn = 0; turn < 3; ++turn) {
      reader->beginTurn();
      EXPECT_EQ(reader->pixel({10, 10}), 0U);
      EXPECT_EQ(reader->pointer(), (ScreenPoint{123, 45}));
      EXPECT_FALSE(reader->optionKey());
      reader->watchPointer(turn % 2 == 0 ? [] {} : std::function<void()>());
      QCoreApplication::processEvents();
    }
    EXPECT_EQ(losses, 1);
    EXPECT_TRUE(eventually(isIdle)) << "the event loop spins on the closed socket";
  }
}

}  // namespace
}  // namespace tavrelkin::test
