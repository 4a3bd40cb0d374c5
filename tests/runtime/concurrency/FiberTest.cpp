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

TEST(FiberTest, AnEndFromOutsideUnwindsItsStack) {
  std::string log;
  const auto body = [&log] {
    const Mark outer{log, "o"};
    const Mark inner{log, "i"};
    Fiber::suspend();
    log += "never";
  };
  Fiber neverBegun(body);
  neverBegun.kill();
  Fiber killed(body);
  killed.resume();
  killed.kill();
  killed.resume();
  EXPECT_TRUE(killed.finished() && neverBegun.finished());
  EXPECT_EQ(log, "io");
  auto destroyed = std::make_unique<Fiber>(body);
  destroyed->resume();
  destroyed.reset();
  EXPECT_EQ(log, "ioio");
}

TEST(FiberTest, EndsItselfAndOthersFromWithin) {
  std::string log;
  Fiber other([&log] {
    const Mark mark{log, "other"};
    Fiber::suspend();
  });
  other.resume();
  std::unique_ptr<Fiber> self = std::make_unique<Fiber>([&] {
    const Mark mark{log, " self"};
    other.kill();
    self->kill();
    log += "never";
  });
  self->resume();
  EXPECT_TRUE(self->finished());
  EXPECT_EQ(log, "other self");
}

}  // namespace
}  // namespace tavrelkin
