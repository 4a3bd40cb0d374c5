#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/desktop/portal/ScreenModel.h"

namespace tavrelkin {
namespace {

constexpr std::int32_t kFarLeft = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kFarRight = std::numeric_limits<std::int32_t>::max();

using Size = CastStream::Size;

CastStream at(std::int32_t x, std::int32_t y, std::optional<Size> size) {
  return {0, ScreenPoint{x, y}, size};
}

CastStream somewhere(std::optional<Size> size = {}) {
  return {0, {}, size};
}

// A picture in which all pixels differ and none is black.
class Picture {
 public:
  Picture(std::size_t stream, Size size) : number_(static_cast<std::uint32_t>(stream)), size_(size) {
    for (std::int32_t y = 0; y < size.height; ++y)
      for (std::int32_t x = 0; x < size.width; ++x)
        for (const std::uint32_t part : {color(x, y), color(x, y) >> 8, color(x, y) >> 16, 0xEEU})
          bytes_.push_back(static_cast<std::uint8_t>(part));
  }

  std::uint32_t color(std::int32_t x, std::int32_t y) const {
    return (number_ + 1) << 16 | static_cast<std::uint32_t>(y) << 8 | static_cast<std::uint32_t>(x);
  }

  ScreenFrame frame() const {
    return {ChannelOrder::bgr, size_.width, size_.height, std::int64_t{size_.width} * 4, bytes_};
  }

 private:
  std::uint32_t number_;
  Size size_;
  std::vector<std::uint8_t> bytes_;
};

int litPixels(ScreenModel& model) {
  int count = 0;
  for (std::int32_t y = -40; y < 40; ++y)
    for (std::int32_t x = -40; x < 40; ++x)
      count += model.pixel({x, y}) != 0 ? 1 : 0;
  return count;
}

TEST(ScreenModel, PutsEachMonitorInItsPlace) {
  const struct {
    const char* name;
    std::vector<CastStream> streams;
    std::vector<Size> frames;
    std::vector<ScreenPoint> origins;
    std::vector<double> scales;
  } rows[] = {
      {"one", {at(3, 2, Size{4, 3})}, {{4, 3}}, {{3, 2}}, {1}},
      {"one without a place", {somewhere()}, {{4, 3}}, {{0, 0}}, {1}},
      {"one without a size", {at(3, 2, {})}, {{4, 3}}, {{3, 2}}, {1}},
      {"one of scale 2", {at(3, 2, Size{2, 2})}, {{4, 4}}, {{6, 4}}, {2}},
      {"one of half a scale", {at(4, 2, Size{8, 8})}, {{4, 4}}, {{2, 1}}, {0.5}},
      {"left and above", {at(0, 0, Size{4, 4}), at(-6, -2, Size{6, 5})}, {{4, 4}, {6, 5}}, {{0, 0}, {-6, -2}}, {1, 1}},
      {"unlike scales", {at(0, 0, Size{8, 4}), at(8, 0, Size{4, 2})}, {{8, 4}, {8, 4}}, {{0, 0}, {16, 0}}, {1, 2}},
      {"halves of pixels",
       {at(1, 0, Size{2, 2}), at(3, 0, Size{1, 1}), at(-1, -3, Size{2, 2})},
       {{3, 3}, {1, 1}, {3, 3}},
       {{2, 0}, {5, 0}, {-1, -4}},
       {1.5, 1, 1.5}},
      {"a place is missing", {at(9, 9, Size{4, 4}), somewhere(Size{3, 3})}, {{4, 4}, {6, 6}}, {{0, 0}, {4, 0}}, {1, 2}},
      {"a size is missing", {at(0, 0, Size{2, 2}), at(2, 0, {})}, {{4, 4}, {5, 5}}, {{0, 0}, {4, 0}}, {2, 1}},
      {"sizes of nothing", {at(0, 0, Size{0, 4}), at(0, 0, Size{4, -1})}, {{4, 4}, {4, 4}}, {{0, 0}, {4, 0}}, {1, 1}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ScreenModel model(row.streams);
    int area = 0;
    for (std::size_t i = 0; i < row.streams.size(); ++i) {
      EXPECT_FALSE(model.hasFrames());
      ASSERT_TRUE(model.putFrame(i, Picture(i, row.frames[i]).frame()));
      area += row.frames[i].width * row.frames[i].height;
    }
    EXPECT_TRUE(model.hasFrames());
    EXPECT_EQ(litPixels(model), area) << "monitors overlap, or gaps are lit";

    for (std::size_t i = 0; i < row.streams.size(); ++i) {
      const auto [x, y] = row.origins[i];
      const std::int32_t right = row.frames[i].width - 1;
      const std::int32_t bottom = row.frames[i].height - 1;
      EXPECT_EQ(model.pixel({x, y}), Picture(i, {}).color(0, 0)) << i;
      EXPECT_EQ(model.pixel({x + right, y + bottom}), Picture(i, {}).color(right, bottom)) << i;
      ASSERT_TRUE(model.putPointer(i, {right, 0}));
      EXPECT_EQ(model.pointer(), (ScreenPoint{x + right, y})) << i;
      EXPECT_EQ(model.pointerScale(), row.scales[i]) << i;
    }
  }
}

TEST(ScreenModel, ACopyKeepsItsFrames) {
  ScreenModel model({at(0, 0, Size{2, 2})});
  model.putFrame(0, Picture(0, {2, 2}).frame());
  ScreenModel copy = model;
  model.putFrame(0, Picture(1, {2, 2}).frame());
  EXPECT_EQ(copy.pixel({1, 1}), Picture(0, {}).color(1, 1));
  EXPECT_EQ(model.pixel({1, 1}), Picture(1, {}).color(1, 1));
}

TEST(ScreenModel, StandsPlacesThatNoDeskHas) {
  ScreenModel model({at(kFarLeft, kFarRight, Size{1, 1}), at(kFarRight, kFarLeft, Size{kFarRight, 1})});
  for (const std::size_t stream : {0U, 1U}) {
    ASSERT_TRUE(model.putFrame(stream, Picture(stream, {8, 8}).frame()));
    ASSERT_TRUE(model.putPointer(stream, {7, 7}));
    EXPECT_NE(model.pixel(model.pointer().value()), 0U);
  }
  EXPECT_EQ(model.pixel({kFarLeft, kFarLeft}) | model.pixel({kFarRight, kFarRight}), 0U);
}

TEST(ScreenModel, HasThePointerWhereAStreamSawItLast) {
  ScreenModel model({at(0, 0, Size{8, 8}), at(8, 0, Size{8, 8})});
  EXPECT_FALSE(model.pointer());
  EXPECT_FALSE(model.putPointer(0, {ScreenModel::kLongestSide, 0})) << "before the first frame";
  ASSERT_TRUE(model.putFrame(0, Picture(0, {8, 8}).frame()) && model.putFrame(1, Picture(1, {8, 8}).frame()));

  const struct {
    const char* name;
    std::size_t stream;
    ScreenPoint place;
    bool taken;
    ScreenPoint pointer;
  } rows[] = {
      {"the last column", 0, {7, 3}, true, {7, 3}},      {"the border is the neighbour's", 0, {8, 3}, false, {7, 3}},
      {"the neighbour has it", 1, {0, 3}, true, {8, 3}}, {"left of a monitor", 1, {-1, 3}, false, {8, 3}},
      {"below a monitor", 1, {4, 8}, false, {8, 3}},     {"far off", 0, {kFarRight, kFarLeft}, false, {8, 3}},
      {"no such stream", 2, {1, 1}, false, {8, 3}},      {"back again", 0, {0, 0}, true, {0, 0}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(model.putPointer(row.stream, row.place), row.taken) << row.name;
    EXPECT_EQ(model.pointer(), row.pointer) << row.name;
  }
}

TEST(ScreenModel, MovesNeighboursWhenAFrameChangesItsSize) {
  ScreenModel model({at(0, 0, Size{4, 4}), at(4, 0, Size{4, 4})});
  ASSERT_TRUE(model.putFrame(0, Picture(0, {4, 4}).frame()) && model.putFrame(1, Picture(1, {4, 4}).frame()));
  ASSERT_TRUE(model.putPointer(1, {2, 1}));
  ASSERT_TRUE(model.putFrame(0, Picture(0, {8, 8}).frame()));
  EXPECT_EQ(model.pointer(), (ScreenPoint{10, 1}));
  EXPECT_EQ(model.pixel({7, 7}), Picture(0, {}).color(7, 7));
  EXPECT_EQ(model.pixel({8, 0}), Picture(1, {}).color(0, 0));
  EXPECT_EQ(litPixels(model), 64 + 16);
}

TEST(ScreenModel, ReadsOrdersAndPaddedLines) {
  const std::vector<std::uint8_t> bytes = {1, 2, 3, 0, 9, 9, 4, 5, 6, 255};
  ScreenModel model({somewhere()});
  ASSERT_TRUE(model.putFrame(0, {ChannelOrder::bgr, 1, 2, 6, bytes}));
  EXPECT_EQ(model.pixel({0, 0}), 0x030201U);
  EXPECT_EQ(model.pixel({0, 1}), 0x060504U);
  ASSERT_TRUE(model.putFrame(0, {ChannelOrder::rgb, 1, 2, 6, bytes}));
  EXPECT_EQ(model.pixel({0, 1}), 0x040506U);
}

TEST(ScreenModel, RefusesFramesThatContradictThemselves) {
  constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLongest = ScreenModel::kLongestSide;
  const std::vector<std::uint8_t> bytes(64);
  const struct {
    const char* name;
    std::size_t stream;
    std::int64_t width, height, stride;
    std::size_t size;
  } rows[] = {
      {"no bytes", 0, 4, 4, 16, 0},
      {"a byte is missing", 0, 4, 4, 16, 63},
      {"no width", 0, 0, 4, 16, 64},
      {"no height", 0, 4, 0, 16, 64},
      {"negative sizes", 0, -4, -4, 16, 64},
      {"no stride", 0, 4, 4, 0, 64},
      {"a negative stride", 0, 4, 4, -16, 64},
      {"lines overlap", 0, 4, 4, 15, 64},
      {"lines too far apart", 0, 4, 4, 17, 64},
      {"the farthest lines", 0, 4, 4, kMost, 64},
      {"too wide", 0, kLongest + 1, 1, 4 * (kLongest + 1), 64},
      {"as many pixels as can be", 0, kMost, kMost, kMost, 64},
      {"no such stream", 1, 4, 4, 16, 64},
  };
  ScreenModel model({somewhere()});
  ASSERT_TRUE(model.putFrame(0, Picture(0, {4, 4}).frame()));
  for (const auto& row : rows) {
    const ScreenFrame lie{ChannelOrder::bgr, row.width, row.height, row.stride, std::span(bytes).first(row.size)};
    EXPECT_FALSE(model.putFrame(row.stream, lie)) << row.name;
    EXPECT_EQ(model.pixel({3, 3}), Picture(0, {}).color(3, 3)) << row.name;
  }
}

}  // namespace
}  // namespace tavrelkin
