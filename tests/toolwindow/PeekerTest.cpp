// The preview: what a sample reads, what is drawn of it, and what the mouse does in it.

#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using PeekerTest = ToolWindowTest;

constexpr Color kSentinel{0x01FE02};

// A pixel that shows whether the preview has been drawn or painted anew.
void putSentinel(frmVesk& window) {
  window.imgScreen.Graphics().Pixel(10, 10, kSentinel);
}
bool sentinelStands(frmVesk& window) {
  return window.imgScreen.Graphics().Pixel(10, 10) == kSentinel;
}

struct Geometry {
  Int32 step, width, height;
  std::size_t reads;
};
constexpr Geometry kGeometry[] = {{1, 103, 49, 5047}, {2, 52, 25, 1275}, {3, 35, 17, 595}};

TEST_F(PeekerTest, ASampleReadsColumnByColumnAndOncePerPixel) {
  for (const auto& [step, width, height, reads] : kGeometry) {
    zoomTo(step);
    fake().pixelsRead.clear();
    fake().pointerAt = {-30, 700};
    window->doTrackSysCursor();

    std::vector<ScreenPoint> wanted{{-30, 700}};
    const auto [reachX, reachY] = reachOf(step);
    for (Int32 x = -30 - reachX; x <= -30 + reachX; ++x) {
      for (Int32 y = 700 - reachY; y <= 700 + reachY; ++y)
        wanted.push_back({x, y});
    }
    EXPECT_EQ(wanted.size(), reads + 1);
    EXPECT_EQ(fake().pixelsRead, wanted) << step;
    EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{-30, 700}");

    Picture& sample = *window->zoomImage;
    EXPECT_EQ(sample.Depth(), 32);
    ASSERT_EQ(sample.Width(), width);
    ASSERT_EQ(sample.Height(), height);
    const auto cell = sampleOf({-30, 700}, step);
    for (Int32 i = 0; i < width; ++i) {
      for (Int32 j = 0; j < height; ++j) {
        const bool neverRead = step == 2 && i == 51;
        ASSERT_EQ(sample.Graphics().Pixel(i, j), neverRead ? kWhite : cell(i, j)) << step << ": " << i << ", " << j;
      }
    }
  }
}

TEST_F(PeekerTest, ASampleIsDrawnWithAMarkerThatStandsOutAndTheFrameLast) {
  const struct { std::uint32_t centre, marker; } contrasts[] = {{0x7F7F7F, 0xF97324}, {0x0000FF, 0x000000}};
  for (const bool guides : {false, true}) {
    if (guides) choose("mnuShowGuide");
    for (const Int32 step : {1, 2, 3}) {
      zoomTo(step);
      for (const auto& [centre, marker] : contrasts) {
        const ScreenPoint middle{300, 200};
        fake().screen = [middle, at = centre](ScreenPoint p) { return p == middle ? at : placeAsColor(p); };
        window->drawSys(middle.x, middle.y);
        const auto around = sampleOf(middle, step);
        const auto cell = [&, at = Color{centre}, reach = reachOf(step)](Int32 column, Int32 row) {
          return column == reach.x && row == reach.y ? at : around(column, row);
        };
        EXPECT_EQ(firstFault(*window, {step, cell, Color{marker}, 4 * step + 1, guides}), "")
            << "step " << step << ", guides " << guides << ", centre " << Hex(static_cast<Int32>(centre));
      }
    }
  }
}

TEST_F(PeekerTest, ARepaintHasAMarkerOfItsOwn) {
  for (const Int32 step : {1, 2, 3}) {
    zoomTo(step);
    window->drawSys(300, 200);
    for (const bool guides : {true, false}) {
      choose("mnuShowGuide");
      EXPECT_EQ(firstFault(*window, {step, sampleOf({300, 200}, step), kBlack, 4 * step, guides}), "") << step;
    }
  }
  window->drawScreen(nullptr);
}

TEST_F(PeekerTest, AZoomStepShowsTheOldSampleThroughTheNewCells) {
  struct {
    Int32 from, to, columns, rows;
  } const steps[] = {{1, 3, 103, 49}, {3, 1, 35, 17}, {2, 1, 52, 25}};
  for (const auto& [from, to, columns, rows] : steps) {
    zoomTo(from);
    window->drawSys(300, 200);
    const Ref<Picture> sample = window->zoomImage;
    const std::size_t reads = fake().pixelsRead.size();
    zoomTo(to);
    EXPECT_EQ(window->ScreenZoomValue, to);
    EXPECT_EQ(fake().pixelsRead.size(), reads);
    EXPECT_EQ(window->zoomImage, sample);
    const auto cell = [&, width = columns, height = rows](Int32 column, Int32 row) {
      return column < width && row < height ? sample->Graphics().Pixel(column, row) : kWhite;
    };
    EXPECT_EQ(firstFault(*window, {to, cell, kBlack, 4 * to}), "") << from << " to " << to;
  }
}

TEST_F(PeekerTest, ADragActsOnlyOutsideThePreview) {
  const struct {
    Int32 x, y;
    bool tracks;
  } drags[] = {{0, 0, false}, {408, 192, false}, {409, 100, true}, {200, 193, true}, {-1, 100, true}, {200, -1, true}};
  gesture::press(window->imgScreen, 100, 100);
  fake().pointerAt = {40, 50};
  for (const auto& [x, y, tracks] : drags) {
    putSentinel(*window);
    fake().pointerAt = {fake().pointerAt.x + 7, 50};
    gesture::dragTo(window->imgScreen, x, y);
    EXPECT_EQ(sentinelStands(*window), !tracks) << x << ", " << y;
    if (tracks) {
      EXPECT_EQ(firstFaultOfSample(*window, fake().pointerAt), "") << x << ", " << y;
    }
  }
  EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});
}

TEST_F(PeekerTest, LettingGoTakesTheColourUnderTheRealPointerAndRepaintsNothing) {
  for (const bool following : {false, true}) {
    if (following) choose("mnuFollow");
    window->flgLockX = true;
    for (bool* flag : {&window->flgShowSuggestions, &window->flgShowColorsInScreen, &window->flgShowColorBlind})
      *flag = true;
    for (const char* item : {"mnuViewSuggestions", "mnuShowColors", "mnuColorBlind"})
      window->MenuBar->Child(item)->Checked = true;
    putSentinel(*window);

    gesture::press(window->imgScreen, 100, 100);
    fake().pointerAt = {5, following ? 6 : 7};
    gesture::release(window->imgScreen, 390, 80);
    EXPECT_EQ(window->SelectedColor, colorAt(5, following ? 6 : 7));
    EXPECT_FALSE(window->flgShowSuggestions || window->flgShowColorsInScreen);
    EXPECT_TRUE(window->flgShowColorBlind);
    EXPECT_EQ(marks(), following ? "mnuFollow mnuColorBlind " : "mnuColorBlind ");
    EXPECT_EQ(window->flgTrackMouse, following);
    EXPECT_TRUE(sentinelStands(*window));
  }
}

TEST_F(PeekerTest, HoveringReadsIntoTheLabelWhileIdle) {
  fake().screen = [](ScreenPoint) { return 0xFF8000u; };
  fake().pointerAt = {70, 80};
  gesture::hover(window->imgScreen, 3, 4);
  EXPECT_EQ(fake().pixelsRead, std::vector<ScreenPoint>({{70, 80}}));
  EXPECT_EQ(window->view0_lblColor.Text.get(), "Color: 255.128.0, 30.100.100, #FF8000");
  EXPECT_EQ(window->view0_lblcoordinates.Text.get(), "{0, 0}");
  EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});

  choose("mnuFollow");
  gesture::hover(window->imgScreen, 3, 4);
  EXPECT_EQ(fake().pixelsRead.size(), 1u);
}

}  // namespace
}  // namespace tavrelkin
