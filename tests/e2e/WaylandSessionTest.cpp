// Follow mouse and Poke on Wayland, from the question to the end of the session.

#include <gtest/gtest.h>

#include "driver/PlayedSession.h"
#include "driver/ToolWindow.h"
#include "fakes/portal/PlayedScreen.h"

namespace tavrelkin::test {
namespace {

using namespace std::chrono_literals;

class WaylandSessionTest : public testing::Test {
 protected:
  // By default there is a monitor of 1280 by 800 at the top left corner.
  using Screen = std::function<std::uint32_t(int, int)>;
  static Screen oneMonitor(std::uint32_t frame = 0) {
    return [frame](int x, int y) { return x >= 0 && x < 1280 && y >= 0 && y < 800 ? playedPixel(frame, 0, x, y) : 0U; };
  }

  testing::AssertionResult shows(ScreenPoint at, const Screen& screen = oneMonitor()) {
    return tool_.getsPreview({.screen = screen, .centre = at});
  }

  // Whether the window follows after the keys are pressed again. They would end following that is still on.
  testing::AssertionResult followsAgain() {
    tool_.keys("Ctrl+F");
    session_.cast({"pointer 640 400"});
    return shows({640, 400});
  }

  // Waits for the message and closes it.
  void closeMessage() {
    session_.bringToFront(session_.waitForWindow("Tavrelkin"));
    session_.hand.keys("Return");
    ASSERT_TRUE(waitUntil([this] { return session_.windows.all().size() == 1; }));
  }

  PlayedSession session_;
  ToolWindow tool_{session_};
};

TEST_F(WaylandSessionTest, FollowsAndPokesOnceTheUserHasAllowedIt) {
  session_.cast({"undecided", "pointer 300 200"});
  const Pixels before = tool_.preview();
  tool_.keys("Ctrl+F");
  ASSERT_TRUE(tool_.paste(0x102030)) << "it stays usable meanwhile";
  EXPECT_EQ(tool_.preview(), before);
  session_.cast({"decide"});
  EXPECT_TRUE(shows({300, 200}));

  session_.cast({"response 1", "pointer 0 799"});
  EXPECT_TRUE(shows({0, 799}));
  session_.cast({"frame 7"});
  EXPECT_TRUE(shows({0, 799}, oneMonitor(7)));
  tool_.keys("Ctrl+F");
  session_.cast({"pointer 1279 0"});
  tool_.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool_.getsTitleOf(playedPixel(7, 0, 1279, 0))) << "without a second question";
}

// What the desktop does before the program asks, and while the program follows; whether the user then sees a message;
// and what the desktop does before the user tries again, if that can help.
struct Ending {
  const char* name;
  std::vector<std::string> before;
  std::vector<std::string> after;
  bool isTold;
  std::vector<std::string> mended;
};

class WaylandEndingTest : public WaylandSessionTest, public testing::WithParamInterface<Ending> {};

TEST_P(WaylandEndingTest, EndsFollowingAndTheNextFollowTriesAgain) {
  const Ending& row = GetParam();
  session_.cast(row.before);
  tool_.keys("Ctrl+F");
  if (!row.after.empty()) {
    session_.cast({"pointer 100 100"});
    ASSERT_TRUE(shows({100, 100}));
    session_.cast(row.after);
  }
  if (row.isTold) closeMessage();
  // After the desktop has ended a session, a change of the monitors may follow for a moment.
  if (!row.isTold) std::this_thread::sleep_for(1s);
  if (row.mended.empty()) return;
  session_.cast(row.mended);
  EXPECT_TRUE(followsAgain());
  EXPECT_EQ(session_.windows.all().size(), 1U);
}

const Ending kEndings[] = {
    {"Refused", {"response 1"}, {}, true, {"response 0"}},
    {"Failed", {"response 2"}, {}, true, {"response 0"}},
    {"ClosedByTheUser", {}, {"close"}, false, {"frame 1", "frame 0"}},
    {"NoPointerSeen", {"gone"}, {}, true, {"pointer 1 1"}},
    {"PipeWireGone", {}, {"crash"}, true, {}},
    {"PortalGone", {}, {"leave"}, true, {}},
    {"NoMetadata", {"modes 3", "picker 0"}, {}, true, {}},
    {"NoScreenCast", {"version 0", "picker 0"}, {}, true, {}},
};
INSTANTIATE_TEST_SUITE_P(, WaylandEndingTest, testing::ValuesIn(kEndings),
                         [](const auto& row) { return row.param.name; });

TEST_F(WaylandSessionTest, GoesOnWhenTheMonitorsChange) {
  tool_.keys("Ctrl+F");
  session_.cast({"pointer 100 100"});
  ASSERT_TRUE(shows({100, 100}));
  session_.cast({"monitors 400x300+0+0*2 480x600+400-100", "close"});
  session_.client.splitScreen(400);
  // The largest scale is 2: the second monitor begins at twice its logical position, with gaps.
  const auto screen = [](int x, int y) {
    if (x >= 0 && x < 800 && y >= 0 && y < 600) return playedPixel(0, 0, x, y);
    if (x >= 800 && x < 1280 && y >= -200 && y < 400) return playedPixel(0, 1, x - 800, y + 200);
    return 0U;
  };
  session_.cast({"pointer 790 590 0"});
  EXPECT_TRUE(shows({790, 590}, screen));
  session_.cast({"pointer 3 4 1"});
  EXPECT_TRUE(shows({803, -196}, screen));
}

TEST_F(WaylandSessionTest, PokeTakesThePickedColorWhereTheDesktopDoesNotTellThePointer) {
  session_.cast({"modes 3", "picker 2", "pick 18 52 86"});
  tool_.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool_.getsTitleOf(0x123456));
  session_.cast({"pick 1 2 3"});
  tool_.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool_.getsTitleOf(0x010203));
  tool_.keys("Ctrl+F");
  closeMessage();
}

TEST_F(WaylandSessionTest, LooksAgainForAPortalThatWasThereOnce) {
  tool_.keys("Ctrl+F");
  session_.cast({"pointer 100 100"});
  ASSERT_TRUE(shows({100, 100}));
  session_.cast({"leave"});
  closeMessage();
  tool_.keys("Ctrl+F");
  closeMessage();
  session_.cast({"enter"});
  EXPECT_TRUE(followsAgain());
}

TEST_F(WaylandSessionTest, PokeTakesThePickedColorWhereTheDesktopAnnouncesThePointerAndNeverTellsIt) {
  session_.cast({"gone", "picker 2", "pick 18 52 86"});
  tool_.keys("Ctrl+F");
  closeMessage();
  tool_.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool_.getsTitleOf(0x123456));
}

TEST_F(WaylandSessionTest, APortalThatNeverAnswersHoldsNothingUp) {
  session_.cast({"mute CreateSession"});
  tool_.keys("Ctrl+F");
  EXPECT_TRUE(tool_.paste(0x123456));
  tool_.keys("Ctrl+F");
  tool_.keys("Ctrl+Q");
  EXPECT_EQ(session_.program.waitForExit(), 0);
}

}  // namespace
}  // namespace tavrelkin::test
