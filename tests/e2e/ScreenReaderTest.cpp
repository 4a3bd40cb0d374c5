#include <cstdint>
#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "driver/EventLoop.h"
#include "driver/Hand.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin::test {
namespace {

std::uint32_t scatter(int x, int y) {
  const std::uint32_t mixed = (static_cast<std::uint32_t>(x) * 7919 + static_cast<std::uint32_t>(y)) * 2654435761U;
  return mixed >> 8;
}

class ScreenReaderTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(reader_);
    client_.movePointer(1, 1);
    reader_->beginTurn();
  }

  void TearDown() override { EXPECT_EQ(losses_, 0); }

  xcb_window_t openWhite() {
    const auto window = client_.open({0, 0, 0x7FFF, 0x7FFF});
    client_.fill(window, 0xFFFFFF);
    return window;
  }

  X11Client client_{qEnvironmentVariable("DISPLAY").toStdString()};
  const int right_ = client_.screenWidth() - 1;
  const int bottom_ = client_.screenHeight() - 1;
  int losses_ = 0;
  int calls_ = 0;
  std::unique_ptr<ScreenReader> reader_ = makeX11ScreenReader([this](const std::string&) { ++losses_; });
};

// The area is larger than several blocks. The orders of reading cross the blocks' edges from all sides.
TEST_F(ScreenReaderTest, ReadsEachPixelAsShown) {
  const Area area{101, 83, 241, 119};
  client_.paint(client_.open(area), area, scatter);

  int wrong = 0;
  const auto check = [&](int column, int row) {
    const ScreenPoint at{area.x + column, area.y + row};
    if (reader_->pixel(at) != client_.shown(scatter(at.x, at.y))) ++wrong;
  };
  for (int column = area.width - 1; column >= 0; --column)
    for (int row = area.height - 1; row >= 0; --row)
      check(column, row);
  EXPECT_EQ(wrong, 0) << "column by column, backwards";

  for (int i = 0; i < 500; ++i) {
    if (i % 3 == 0) reader_->beginTurn();
    check(i * 67 % area.width, i * 41 % area.height);
  }
  EXPECT_EQ(wrong, 0) << "in leaps";
}

TEST_F(ScreenReaderTest, IsBlackOffTheScreen) {
  openWhite();
  constexpr int kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr int kGreatest = std::numeric_limits<std::int32_t>::max();
  const ScreenPoint inside[] = {{0, 0}, {right_, 0}, {0, bottom_}, {right_, bottom_}};
  const ScreenPoint outside[] = {{-1, 0},          {0, -1},        {right_ + 1, 0}, {0, bottom_ + 1},
                                 {kLeast, kLeast}, {kGreatest, 0}, {0, kLeast},     {kGreatest, kGreatest},
                                 {65536, 0}};
  for (const bool eachInItsTurn : {true, false}) {
    for (const ScreenPoint& on : inside) {
      for (const ScreenPoint& off : outside) {
        if (eachInItsTurn) reader_->beginTurn();
        EXPECT_EQ(reader_->pixel(off), 0U) << off.x << ',' << off.y;
        EXPECT_EQ(reader_->pixel(on), 0xFFFFFFU) << on.x << ',' << on.y;
      }
    }
  }
}

TEST_F(ScreenReaderTest, SeesChangesInTheNextTurnAndSoonWithoutOne) {
  const auto window = client_.open({50, 50, 10, 10});
  const ScreenPoint inside{55, 55};
  for (const std::uint32_t color : {0xFF0000U, 0x00FF00U}) {
    client_.fill(window, color);
    reader_->beginTurn();
    EXPECT_EQ(reader_->pixel(inside), color);
  }
  client_.fill(window, 0x0000FF);
  EXPECT_TRUE(eventually([&] { return reader_->pixel(inside) == 0x0000FFU; }));
}

// Layouts assign the level-3 shift to different modifiers, and a user may change the layout.
TEST_F(ScreenReaderTest, KnowsAltAndAltGrByTheKeyboardLayoutOfTheMoment) {
  Hand hand(client_);
  const auto holds = [&](const std::string& key) {
    hand.press(key);
    const bool result = reader_->optionKey();
    hand.release(key);
    return result;
  };
  for (const int modifier : {5, 3}) {
    client_.setModifier(modifier, hand.keyCode("AltGr"));
    for (const auto& [key, isOption] : {std::pair{"Alt", true}, {"AltGr", true}, {"Shift", false}, {"Ctrl", false}}) {
      EXPECT_EQ(holds(key), isOption) << key << " while AltGr is Mod" << modifier;
      EXPECT_FALSE(reader_->optionKey()) << key << " is up";
    }
  }
}

TEST_F(ScreenReaderTest, TellsOfMovementsWhileWatching) {
  for (const bool again : {false, true}) {
    calls_ = 0;
    reader_->watch([this] { ++calls_; });
    reader_->optionKey();  // returns after the server has started to watch
    client_.movePointer(20, 30);
    EXPECT_TRUE(eventually([this] { return calls_ > 0; })) << again;

    reader_->watch({});
    reader_->optionKey();
    ASSERT_TRUE(eventually(isIdle));
    calls_ = 0;
    // The toolkit has its own events at times; movements must not add to them.
    const auto sleepsThroughMovements = [&] {
      for (int i = 0; i < 20; ++i)
        client_.movePointer(40 + i, 50);
      return isIdle();
    };
    EXPECT_TRUE(eventually(sleepsThroughMovements)) << "woken for nothing";
    EXPECT_EQ(calls_, 0);
  }
}

// The events are then in the process's memory, and the socket does not wake the event loop.
TEST_F(ScreenReaderTest, TellsOfMovementsThatArriveDuringARead) {
  const std::function<void()> reads[] = {
      [this] {
        reader_->pixel({400, 300});
      },
      [this] {
        reader_->pixel({-400, 300});
      },
      [this] { reader_->pointer(); },
      [this] { reader_->optionKey(); },
  };
  reader_->watch([this] { ++calls_; });
  int x = 100;
  for (const auto& read : reads) {
    reader_->optionKey();
    QCoreApplication::processEvents();
    calls_ = 0;
    client_.movePointer(++x, 100);
    reader_->beginTurn();
    read();
    EXPECT_EQ(calls_, 0) << x << ": not from inside a read";
    EXPECT_TRUE(eventually([this] { return calls_ > 0; })) << x;
    QCoreApplication::processEvents();
    EXPECT_EQ(calls_, 1) << x;
  }
}

TEST_F(ScreenReaderTest, AWatcherMayEndItsWatch) {
  reader_->watch([this] {
    reader_->watch({});
    ++calls_;
  });
  for (const int x : {20, 30}) {
    reader_->optionKey();
    client_.movePointer(x, 30);
    EXPECT_TRUE(eventually([this] { return calls_ > 0; }));
  }
  reader_->optionKey();
  QCoreApplication::processEvents();
  EXPECT_EQ(calls_, 1);
}

TEST_F(ScreenReaderTest, FollowsTheSizeOfTheScreen) {
  const auto window = openWhite();
  const ScreenPoint corner{right_, bottom_};
  const struct {
    int width, height;
    std::uint32_t atCorner;
  } sizes[] = {{400, 300, 0}, {right_ + 1, bottom_ + 1, 0xFFFFFF}};
  for (const auto& [width, height, atCorner] : sizes) {
    client_.resizeScreen(width, height);
    client_.fill(window, 0xFFFFFF);
    reader_->beginTurn();
    EXPECT_EQ(reader_->pixel({399, 299}), 0xFFFFFFU) << "a block that would reach beyond the new edge";
    EXPECT_EQ(reader_->pixel({400, 299}), atCorner);
    EXPECT_EQ(reader_->pixel(corner), atCorner);
  }
  // The size changes in the middle of a turn, and the reader does not know it yet.
  for (int i = 0; i < 20; ++i) {
    const auto& [width, height, atCorner] = sizes[i % 2];
    reader_->beginTurn();
    reader_->pixel({10, 10});
    client_.resizeScreen(width, height);
    EXPECT_EQ(reader_->pixel({390, 290}), 0xFFFFFFU) << i;
    EXPECT_TRUE(atCorner != 0 || reader_->pixel(corner) == 0) << i;
  }
}

TEST_F(ScreenReaderTest, NeedsADisplayAndGivesBackItsConnection) {
  // This is more than a server accepts at a time.
  for (int i = 0; i < 600; ++i)
    ASSERT_TRUE(makeX11ScreenReader({})) << i;
  const QByteArray display = qgetenv("DISPLAY");
  qputenv("DISPLAY", ":6543");
  EXPECT_FALSE(makeX11ScreenReader({}));
  qputenv("DISPLAY", display);
}

}  // namespace
}  // namespace tavrelkin::test
