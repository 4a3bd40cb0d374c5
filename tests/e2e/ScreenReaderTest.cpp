#include <cstdint>
#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "e2e/Eventually.h"
#include "e2e/X11Client.h"
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

  X11Client client_;
  int losses_ = 0;
  std::unique_ptr<ScreenReader> reader_ = makeX11ScreenReader([this](const std::string&) { ++losses_; });
};

// Larger than several blocks, and read in orders that meet the blocks' edges from all sides.
TEST_F(ScreenReaderTest, ReadsEachPixelAsShown) {
  const Area area{101, 83, 241, 119};
  client_.paint(client_.open(area), area, scatter);

  int wrong = 0;
  const auto check = [&](int x, int y) {
    if (reader_->pixel({x, y}) != client_.shown(scatter(x, y))) ++wrong;
  };
  for (int y = area.y; y < area.y + area.height; ++y)
    for (int x = area.x; x < area.x + area.width; ++x)
      check(x, y);
  EXPECT_EQ(wrong, 0) << "row by row";

  reader_->beginTurn();
  for (int x = area.x + area.width - 1; x >= area.x; --x)
    for (int y = area.y + area.height - 1; y >= area.y; --y)
      check(x, y);
  EXPECT_EQ(wrong, 0) << "column by column, backwards";

  for (int i = 0; i < 500; ++i) {
    if (i % 3 == 0) reader_->beginTurn();
    check(area.x + i * 67 % area.width, area.y + i * 41 % area.height);
  }
  EXPECT_EQ(wrong, 0) << "in leaps";
}

TEST_F(ScreenReaderTest, IsBlackOffTheScreen) {
  const int right = client_.screenWidth() - 1;
  const int bottom = client_.screenHeight() - 1;
  client_.fill(client_.open({0, 0, static_cast<std::uint16_t>(right + 1), static_cast<std::uint16_t>(bottom + 1)}),
               0xFFFFFF);
  constexpr int kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr int kGreatest = std::numeric_limits<std::int32_t>::max();
  const struct {
    ScreenPoint at;
    std::uint32_t expected;
  } rows[] = {
      {{0, 0}, 0xFFFFFF},
      {{-1, 0}, 0},
      {{0, -1}, 0},
      {{right, 0}, 0xFFFFFF},
      {{right + 1, 0}, 0},
      {{0, bottom}, 0xFFFFFF},
      {{0, bottom + 1}, 0},
      {{right, bottom}, 0xFFFFFF},
      {{right + 1, bottom + 1}, 0},
      {{kLeast, kLeast}, 0},
      {{kGreatest, 0}, 0},
      {{0, kLeast}, 0},
      {{kGreatest, kGreatest}, 0},
      {{65536, 0}, 0},
  };
  for (const bool eachInItsTurn : {true, false})
    for (const auto& row : rows) {
      if (eachInItsTurn) reader_->beginTurn();
      EXPECT_EQ(reader_->pixel(row.at), row.expected) << row.at.x << ',' << row.at.y;
    }
}

TEST_F(ScreenReaderTest, SeesChangesInTheNextTurnAndSoonWithoutOne) {
  const auto window = client_.open({50, 50, 10, 10});
  const ScreenPoint inside{55, 55};
  client_.fill(window, 0xFF0000);
  reader_->beginTurn();
  EXPECT_EQ(reader_->pixel(inside), 0xFF0000U);

  client_.fill(window, 0x00FF00);
  reader_->beginTurn();
  EXPECT_EQ(reader_->pixel(inside), 0x00FF00U);

  client_.fill(window, 0x0000FF);
  EXPECT_TRUE(eventually([&] { return reader_->pixel(inside) == 0x0000FFU; }));
}

TEST_F(ScreenReaderTest, FollowsThePointerAndTheAltKey) {
  for (const ScreenPoint at : {ScreenPoint{300, 200}, ScreenPoint{0, 0}, ScreenPoint{client_.screenWidth() - 1, 7}}) {
    client_.movePointer(at.x, at.y);
    reader_->beginTurn();
    EXPECT_EQ(reader_->pointer(), at);
  }
  EXPECT_FALSE(reader_->optionKey());
  client_.pressAlt();
  EXPECT_TRUE(reader_->optionKey());
  client_.releaseAlt();
  EXPECT_FALSE(reader_->optionKey());
}

TEST_F(ScreenReaderTest, TellsOfMovementsWhileWatching) {
  int calls = 0;
  reader_->watchPointer([&] { ++calls; });
  reader_->optionKey();  // waits until the server has begun to watch
  client_.movePointer(20, 30);
  EXPECT_TRUE(eventually([&] { return calls > 0; }));

  reader_->watchPointer({});
  reader_->optionKey();
  ASSERT_TRUE(eventually(isIdle));
  calls = 0;
  // The toolkit has events of its own now and then; movements must not add to them.
  const auto sleepsThroughMovements = [&] {
    for (int i = 0; i < 20; ++i)
      client_.movePointer(40 + i, 50);
    reader_->optionKey();
    return isIdle();
  };
  EXPECT_TRUE(eventually(sleepsThroughMovements)) << "woken for nothing";
  EXPECT_EQ(calls, 0);

  reader_->watchPointer([&] { ++calls; });
  reader_->optionKey();
  client_.movePointer(60, 70);
  EXPECT_TRUE(eventually([&] { return calls > 0; })) << "watched again";
}

// The events are then in the memory of the process, and the event loop hears nothing of them from the socket.
TEST_F(ScreenReaderTest, TellsOfMovementsThatArriveDuringARead) {
  const struct {
    const char* name;
    int movements;  // that are sure to arrive together
    std::function<void()> read;
  } rows[] = {
      {"pixel", 2,
       [&] {
         reader_->pixel({400, 300});
       }},
      {"pointer", 2, [&] { reader_->pointer(); }},
      {"optionKey", 2, [&] { reader_->optionKey(); }},
      {"pixel off the screen", 1,
       [&] {
         reader_->pixel({-400, 300});
       }},
  };
  int calls = 0;
  reader_->watchPointer([&] { ++calls; });
  int x = 100;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    reader_->optionKey();
    QCoreApplication::processEvents();
    calls = 0;

    for (int i = 0; i < row.movements; ++i)
      client_.movePointer(++x, 100);
    reader_->beginTurn();
    row.read();
    EXPECT_EQ(calls, 0) << "not from inside a read";
    EXPECT_TRUE(eventually([&] { return calls > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
  }
}

TEST_F(ScreenReaderTest, AWatcherMayEndItsWatch) {
  int calls = 0;
  reader_->watchPointer([&] {
    reader_->watchPointer({});
    ++calls;
  });
  reader_->optionKey();
  client_.movePointer(20, 30);
  EXPECT_TRUE(eventually([&] { return calls > 0; }));
  client_.movePointer(30, 30);
  reader_->optionKey();
  QCoreApplication::processEvents();
  EXPECT_EQ(calls, 1);
}

TEST_F(ScreenReaderTest, FollowsTheSizeOfTheScreen) {
  const auto width = static_cast<std::uint16_t>(client_.screenWidth());
  const auto height = static_cast<std::uint16_t>(client_.screenHeight());
  const auto window = client_.open({0, 0, width, height});
  client_.fill(window, 0xFFFFFF);
  reader_->beginTurn();
  const ScreenPoint corner{width - 1, height - 1};
  ASSERT_EQ(reader_->pixel(corner), 0xFFFFFFU);

  if (!client_.resizeScreen(400, 300)) GTEST_SKIP() << "This server's screen keeps its size.";
  reader_->beginTurn();
  EXPECT_EQ(reader_->pixel({399, 299}), 0xFFFFFFU) << "a block that would reach beyond the new edge";
  EXPECT_EQ(reader_->pixel({400, 299}), 0U);
  EXPECT_EQ(reader_->pixel(corner), 0U);

  ASSERT_TRUE(client_.resizeScreen(width, height));
  client_.fill(window, 0x00FF00);
  reader_->beginTurn();
  EXPECT_EQ(reader_->pixel(corner), 0x00FF00U);

  // A change of size in the middle of a turn, of which the reader knows nothing yet.
  for (int i = 0; i < 20; ++i) {
    const bool shrinks = i % 2 == 0;
    reader_->beginTurn();
    reader_->pixel({10, 10});
    ASSERT_TRUE(shrinks ? client_.resizeScreen(400, 300) : client_.resizeScreen(width, height));
    EXPECT_EQ(reader_->pixel({390, 290}), 0x00FF00U) << i;
    EXPECT_TRUE(!shrinks || reader_->pixel(corner) == 0) << i;
  }
}

TEST_F(ScreenReaderTest, GivesBackItsConnection) {
  // More than a server takes at a time.
  for (int i = 0; i < 600; ++i)
    ASSERT_TRUE(makeX11ScreenReader({})) << i;
}

TEST(ScreenReader, NeedsADisplay) {
  const QByteArray display = qgetenv("DISPLAY");
  qputenv("DISPLAY", ":6543");
  EXPECT_FALSE(makeX11ScreenReader({}));
  qputenv("DISPLAY", display);
}

}  // namespace
}  // namespace tavrelkin::test
