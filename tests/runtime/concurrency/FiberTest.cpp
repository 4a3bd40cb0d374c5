#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "runtime/concurrency/Fiber.h"

namespace tavrelkin {
namespace {

// Writes down when it goes.
struct Mark {
  std::string& log;
  const char* text;
  ~Mark() { log += text; }
};

TEST(FiberTest, RunsInPieces) {
  std::string log;
  Fiber fiber([&] {
    log += "a";
    Fiber::suspend();
    log += "c";
  });
  fiber.resume();
  log += "b";
  EXPECT_FALSE(fiber.finished());
  fiber.resume();
  EXPECT_TRUE(fiber.finished());
  fiber.resume();
  EXPECT_EQ(log, "abc");
}

TEST(FiberTest, AnEndFromOutsideUnwindsItsStack) {
  std::string log;
  const auto body = [&log] {
    const Mark outer{log, "o"};
    const Mark inner{log, "i"};
    Fiber::suspend();
    log += "never";
  };
  Fiber killed(body);
  killed.resume();
  killed.kill();
  EXPECT_TRUE(killed.finished());
  EXPECT_EQ(log, "io");
  {
    Fiber destroyed(body);
    destroyed.resume();
  }
  EXPECT_EQ(log, "ioio");
  Fiber neverBegun(body);
  neverBegun.kill();
  EXPECT_TRUE(neverBegun.finished());
  EXPECT_EQ(log, "ioio");
}

TEST(FiberTest, EndsItselfAndOthersFromWithin) {
  std::string log;
  Fiber other([&log] {
    const Mark mark{log, "other"};
    Fiber::suspend();
  });
  other.resume();
  std::unique_ptr<Fiber> self;
  self = std::make_unique<Fiber>([&] {
    const Mark mark{log, " self"};
    other.kill();
    self->kill();
    log += "never";
  });
  self->resume();
  EXPECT_TRUE(self->finished());
  EXPECT_EQ(log, "other self");
}

TEST(FiberTest, LetsExceptionsPassWithinIt) {
  Fiber fiber([] {
    try {
      throw 1;
    } catch (int) {
    }
    Fiber::suspend();
    EXPECT_THROW(throw 2, int);
  });
  fiber.resume();
  fiber.resume();
  EXPECT_TRUE(fiber.finished());
}

}  // namespace
}  // namespace tavrelkin
