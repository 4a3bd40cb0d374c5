#include "controls/zrColorBox.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 100}) {
    box.place(20, 30, 13, 14);
    box.HelpTag = "a tip";
    box.Action = [this] { ++clicks; };
  }
  zrColorBox box{*this, "box"};
  int clicks = 0;
};

class zrColorBoxTest : public RuntimeTest {
 protected:
  zrColorBoxTest() { host->Show(); }
  const Ref<Host> host = New<Host>();
};

TEST_F(zrColorBoxTest, AValueIsToldInTheHelpTag) {
  EXPECT_EQ(host->box.HelpTag.get(), "a tip");
  host->box.SetValue(Color{0xFF8000});
  EXPECT_EQ(host->box.HelpTag.get(), "Color: 255.128.0, #FF8000");
  EXPECT_EQ(host->clicks, 0);
}

TEST_F(zrColorBoxTest, AClickCountsInsideButNotInTheFirstRowAndColumn) {
  const struct {
    Int32 x, y;
    bool counts;
  } rows[] = {{1, 1, true},   {12, 13, true}, {6, 6, true},   {0, 6, false}, {6, 0, false},
              {13, 6, false}, {6, 14, false}, {-1, 6, false}, {6, -1, false}};
  for (const auto& [x, y, counts] : rows) {
    host->clicks = 0;
    gesture::press(host->box, 6, 6);
    EXPECT_EQ(host->clicks, 0);
    gesture::release(host->box, x, y);
    EXPECT_EQ(host->clicks, counts ? 1 : 0) << x << ", " << y;
  }
}

}  // namespace
}  // namespace tavrelkin
