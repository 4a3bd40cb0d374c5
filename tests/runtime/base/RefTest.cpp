#include <string>

#include <gtest/gtest.h>

#include "runtime/base/Property.h"
#include "runtime/base/Ref.h"

namespace tavrelkin {
namespace {

// Counts how many there are.
class Thing : public Object {
 public:
  Thing() { ++living; }
  ~Thing() override { --living; }
  inline static int living = 0;
};

class Special : public Thing {
 public:
  explicit Special(Ref<Special>* handOut = nullptr) {
    if (handOut) *handOut = Ref<Special>(this);
  }
  // Begins and ends a reference of its own, as a window does that opens itself.
  void constructed() override {
    const Ref<Special> brief(this);
    built = true;
  }
  bool built = false;
};

class Refuses : public Thing {
 public:
  void constructed() override { throw OutOfBoundsException(); }
};

TEST(RefTest, AnObjectGoesWithItsLastReference) {
  Ref<Special> first = New<Special>();
  EXPECT_TRUE(first->built);
  Ref<Thing> base = first;
  EXPECT_TRUE(base == Ref<Thing>(first));
  first = Ref<Special>(first.get());
  first = nullptr;
  EXPECT_EQ(Thing::living, 1);
  Ref<Thing> moved = std::move(base);
  base = Ref<Thing>();
  EXPECT_EQ(Thing::living, 1);
  moved = New<Special>();
  EXPECT_EQ(Thing::living, 1);
  moved = nullptr;
  EXPECT_EQ(Thing::living, 0);
}

TEST(RefTest, AConstructorMayHandOutItsObject) {
  Ref<Special> handedOut;
  New<Special>(&handedOut);
  ASSERT_EQ(Thing::living, 1);
  EXPECT_TRUE(handedOut->built);
  handedOut = nullptr;
  EXPECT_EQ(Thing::living, 0);
}

TEST(RefTest, AnObjectThatFailsIsNotLeftBehind) {
  EXPECT_THROW(New<Refuses>(), OutOfBoundsException);
  EXPECT_EQ(Thing::living, 0);
}

TEST(RefTest, UseOfNilThrows) {
  const Ref<Special> nil;
  EXPECT_THROW(nil->built = true, NilObjectException);
  EXPECT_THROW((*nil).built = true, NilObjectException);
  EXPECT_TRUE(nil == nullptr && nil == Ref<Special>());
}

TEST(PropertyTest, TellsOfEachWriteButNotOfAStore) {
  std::string log;
  Property<int> a(1, [&log](int value) { log += std::to_string(value) + " "; });
  Property<int> b(5);
  a = 2;
  a = b;
  a.store(7);
  EXPECT_EQ(log, "2 5 ");
  EXPECT_EQ(a + b, 12);
}

}  // namespace
}  // namespace tavrelkin
