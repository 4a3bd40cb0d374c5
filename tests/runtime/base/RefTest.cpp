#include <gtest/gtest.h>

#include "runtime/base/Ref.h"

namespace tavrelkin {
namespace {

// Counts how many there are.
class Thing : public Object {
 public:
  explicit Thing(Ref<Thing>* handOut = nullptr, bool fails = false) : fails_(fails) {
    ++living;
    if (handOut) *handOut = Ref<Thing>(this);
  }
  ~Thing() override { --living; }
  // Begins and ends a reference of its own, as a window does that opens itself.
  void constructed() override {
    const Ref<Thing> brief(this);
    if (fails_) throw OutOfBoundsException();
  }
  inline static int living = 0;

 private:
  bool fails_;
};

TEST(RefTest, AnObjectGoesWithItsLastReference) {
  Ref<Thing> first = New<Thing>();
  Ref<Object> base = first;
  first = Ref<Thing>(first.get());
  first = nullptr;
  Ref<Object> moved = std::move(base);
  base = Ref<Object>();
  EXPECT_EQ(Thing::living, 1);
  moved = New<Thing>();
  EXPECT_EQ(Thing::living, 1) << "the former one";
  moved = nullptr;
  EXPECT_EQ(Thing::living, 0);
}

TEST(RefTest, AConstructorMayHandOutItsObjectOrFail) {
  Ref<Thing> handedOut;
  New<Thing>(&handedOut);
  ASSERT_EQ(Thing::living, 1);
  handedOut = nullptr;
  EXPECT_EQ(Thing::living, 0);
  EXPECT_THROW(New<Thing>(nullptr, true), OutOfBoundsException);
  EXPECT_EQ(Thing::living, 0);
}

}  // namespace
}  // namespace tavrelkin
