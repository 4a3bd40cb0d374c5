#include "controls/BarPosition.h"
#include "controls/BarTest.h"
#include "support/Gestures.h"

namespace tavrelkin {
namespace {

using BarGesturesTest = BarTest;

TEST_F(BarGesturesTest, PositionsAreThreeFormulas) {
  EXPECT_EQ(BarPosition::ofValue(128, 255, 121), 60);
  EXPECT_EQ(BarPosition::ofValue(255, 255, 121), 115);
  EXPECT_EQ(BarPosition::ofKeyedValue(0, 255, 121), 1);
  EXPECT_EQ(BarPosition::ofKeyedValue(255, 255, 121), 118);
  EXPECT_EQ(BarPosition::valueAt(60, 255, 121), 127);
  EXPECT_EQ(BarPosition::valueAt(115, 255, 121), 255);
}

TEST_F(BarGesturesTest, APressCountsOnTheIndicatorOnly) {
  const struct {
    Int32 x, y;
    bool taken;
  } rows[] = {{63, 5, true},  {57, 5, true}, {64, 5, false}, {56, 5, false},
              {60, 0, false}, {60, 1, true}, {60, 19, true}};
  for (const auto& row : rows) {
    const Ref<Host> host = open(0, Color{0x804020});
    gesture::press(host->bar, row.x, row.y);
    gesture::dragTo(host->bar, 200, 5);
    gesture::release(host->bar, 200, 5);
    EXPECT_EQ(host->log, row.taken ? "changing action " : "") << row.x << ", " << row.y;
    EXPECT_EQ(host->bar.propBaseColor, row.taken ? Color{0xFF4020} : Color{0x804020});
  }
}

TEST_F(BarGesturesTest, ADragChangesTheValueButTheColourOnlyAtItsEnd) {
  const Ref<Host> host = open(0, Color{0x804020});
  gesture::press(host->bar, 60, 5);
  gesture::dragTo(host->bar, 6, 5);
  EXPECT_EQ(host->bar.Value, 2);
  EXPECT_EQ(host->bar.HelpTag.get(), "Red 2");
  EXPECT_EQ(host->bar.propBaseColor, Color{0x804020});
  gesture::dragTo(host->bar, 100, -3);
  EXPECT_EQ(host->bar.Value, 2) << "above the bar the value stands still";
  host->bar.WebSafe = true;
  gesture::dragTo(host->bar, 50, 5);
  gesture::release(host->bar, 50, 5);
  EXPECT_EQ(host->bar.propBaseColor, Color{0x664020}) << "down to a multiple of 51";
}

TEST_F(BarGesturesTest, AnyKeyRaisesChangeAndOnlyArrowsStep) {
  const Ref<Host> host = open(1, Color{0x00FF00});
  host->bar.SetFocus();
  for (const int key : {0x01000014, 0x01000012, 0x41})
    gesture::key(host->bar, key);
  EXPECT_EQ(host->log, "change change change ");
  EXPECT_EQ(host->bar.propBaseColor, Color{0x00FE00});
}

TEST_F(BarGesturesTest, ADroppedColourGivesItsChannelOnly) {
  const Ref<Host> host = open(1, Color{0x112233});
  const Ref<DragItem> item = New<DragItem>();
  item->SetText("no colour");
  host->bar.Event_DropObject(item, 0);
  EXPECT_EQ(host->log, "");
  item->SetText(" #FF8000 ");
  host->bar.Event_DropObject(item, 0);
  EXPECT_EQ(host->bar.propBaseColor, Color{0x118033});
  item->MacData("hcol", "1, 2, 3");
  host->bar.Event_DropObject(item, 0);
  EXPECT_EQ(host->bar.propBaseColor, Color{0x110233}) << "private data goes ahead of text";
}

TEST_F(BarGesturesTest, TheStripStepsByTwoAndIsNotScaled) {
  const Ref<Host> host = open(0, kBlack);
  host->bar.SetValue(128);
  const Graphics& g = host->bar.Graphics();
  EXPECT_EQ(g.Pixel(5, 5), kBlack);
  EXPECT_EQ(g.Pixel(6, 5), RGB(2, 0, 0));
  EXPECT_EQ(g.Pixel(118, 5), RGB(226, 0, 0));
  EXPECT_EQ(g.Pixel(60, 5), RGB(128, 0, 0)) << "the indicator";
  EXPECT_EQ(g.Pixel(60, 2), RGB(110, 0, 0)) << "row 2 keeps the strip";
  EXPECT_EQ(g.Pixel(57, 0), Color{0x606060});
  EXPECT_EQ(g.Pixel(58, 1), kWhite);
  EXPECT_EQ(g.Pixel(0, 0), Color{0x949494});
}

}  // namespace
}  // namespace tavrelkin
