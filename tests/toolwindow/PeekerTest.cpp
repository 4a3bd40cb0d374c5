// The preview: the pixels of a sample, their drawing, and the mouse in the preview.

#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using PeekerTest = ToolWindowTest;

TEST_F(PeekerTest, ASampleReadsColumnByColumnAndOncePerPixel) {
  const std::tuple<Int32, Int32, Int32> rows[] = {{1, 103, 49}, {2, 52, 25}, {3, 35, 17}};
  for (const auto& [step, width, height] : rows) {
    zoomTo(step);
    fake().pixelsRead.clear();
    fake().pointerAt = {-30, 700};
    window->doTrackSysCursor();
    std::vector<ScreenPoint> wanted{{-30, 700}};
    for (Int32 x = -reachX(step); x <= reachX(step); ++x) {
      for (Int32 y = -reachY(step); y <= reachY(step); ++y)
        wanted.push_back({x - 30, y + 700});
    }
    EXPECT_EQ(fake().pixelsRead, wanted) << step;
    EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{-30, 700}");
    EXPECT_EQ(window->zoomImage->Width(), width);
    EXPECT_EQ(window->zoomImage->Height(), height);
    const Color last = step == 2 ? kWhite : sampleOf({-30, 700}, step)(width - 1, height - 1);
    EXPECT_EQ(window->zoomImage->Graphics().Pixel(width - 1, height - 1), last) << "white where none is read";
  }
}

TEST_F(PeekerTest, ASampleHasAMarkerThatStandsOutAndARepaintOneOfItsOwn) {
  zoomTo(3);
  choose("mnuShowGuide");
  for (const Int32 step : {1, 2, 3}) {
    zoomTo(step);
    const Int32 side = 4 * step;
    for (const auto& [centre, marker] : {std::pair{0x7F7F7Fu, Color{0xF97324}}, {0x0000FFu, kBlack}}) {
      fake().screen = [bits = centre](ScreenPoint) { return bits; };
      window->drawSys(300, 200);
      for (const auto& [end, c] : {std::pair{side, marker}, {side - 1, kBlack}}) {
        EXPECT_EQ(shown(reachX(step) * side + end, reachY(step) * side + end), c) << step;
        EXPECT_EQ(shown(reachX(step) * side, reachY(step) * side), c) << step;
        EXPECT_EQ(shown(reachX(step) * side + 2, reachY(step) * side + 2), Color{centre}) << "inside the marker";
        EXPECT_EQ(shown(408 - side, 2), Color{0xCECECE}) << "the last guide at step " << step;
        EXPECT_EQ(shown(2, 192 - side), Color{0xCECECE}) << "the lowest guide at step " << step;
        EXPECT_EQ(shown(2, 2), Color{centre}) << "no guide at step " << step;
        EXPECT_EQ(shown(407, 191), kWhite) << "the frame";
        window->imgScreen.Refresh(true);
      }
    }
  }
}

TEST_F(PeekerTest, AZoomStepShowsTheOldSampleThroughTheNewCells) {
  for (const auto& [from, to] : {std::pair{1, 3}, {3, 1}, {2, 1}}) {
    zoomTo(from);
    window->drawSys(300, 200);
    const Ref<Picture> sample = window->zoomImage;
    fake().pixelsRead.clear();
    zoomTo(to);
    EXPECT_TRUE(fake().pixelsRead.empty());
    const auto cell = [&](Int32 column, Int32 row) {
      return column < sample->Width() && row < sample->Height() ? sample->Graphics().Pixel(column, row) : kWhite;
    };
    EXPECT_EQ(firstFault(cell), "") << from << " to " << to;
  }
}

TEST_F(PeekerTest, ADragActsOnlyOutsideThePreview) {
  const std::tuple<Int32, Int32, bool> rows[] = {{0, 0, false},    {408, 192, false}, {409, 100, true},
                                                 {200, 193, true}, {-1, 100, true},   {200, -1, true}};
  gesture::press(window->imgScreen, 100, 100);
  fake().pointerAt = {40, 50};
  for (const auto& [x, y, tracks] : rows) {
    window->imgScreen.Graphics().Pixel(10, 10, Color{0x01FE02});
    gesture::dragTo(window->imgScreen, x, y);
    EXPECT_EQ(shown(10, 10) != Color{0x01FE02}, tracks) << x << ", " << y;
  }
  EXPECT_EQ(firstFaultOfSample({40, 50}), "");
  EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});
}

TEST_F(PeekerTest, LettingGoTakesTheColorUnderTheRealPointer) {
  window->flgLockX = true;
  gesture::press(window->imgScreen, 100, 100);
  fake().pointerAt = {5, 7};
  gesture::release(window->imgScreen, 390, 80);
  EXPECT_EQ(window->SelectedColor, colorAt(5, 7));
}

TEST_F(PeekerTest, HoveringReadsIntoTheLabelWhileIdle) {
  fake().screen = [](ScreenPoint) { return 0xFF8000u; };
  fake().pointerAt = {70, 80};
  gesture::hover(window->imgScreen, 3, 4);
  EXPECT_EQ(window->view0_lblColor.Text.get(), "Color: 255.128.0, 30.100.100, #FF8000");
  EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});
  choose("mnuFollow");
  gesture::hover(window->imgScreen, 3, 4);
  EXPECT_EQ(fake().pixelsRead, std::vector<ScreenPoint>({{70, 80}}));
}

}  // namespace
}  // namespace tavrelkin
