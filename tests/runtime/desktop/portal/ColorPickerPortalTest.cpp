#include <limits>
#include <string>

#include "runtime/desktop/portal/ColorPickerPortal.h"
#include "runtime/desktop/portal/PortalTest.h"

namespace tavrelkin::test {
namespace {

using Color = std::optional<std::uint32_t>;

class ColorPickerPortalTest : public PortalTest {
 protected:
  ColorPickerPortalTest() { portal.emplace(bus.address()); }

  void pick() {
    picked.reset();
    picker.pick([this](Color color) { picked = color; });
  }

  // Waits for the answer; the test fails if none comes.
  Color answer() {
    EXPECT_TRUE(waitUntil([this] { return picked.has_value(); }));
    return picked.value_or(Color());
  }

  ColorPickerPortal picker{connection.bus, patient};
  std::optional<Color> picked;
};

QVariantList granted(const QVariant& color) {
  return {0U, QVariantMap{{QStringLiteral("color"), color}}};
}

QVariantList granted(double red, double green, double blue) {
  return granted(QVariant::fromValue(PortalColor{red, green, blue}));
}

TEST_F(ColorPickerPortalTest, GivesTheColorOrNothing) {
  const struct {
    std::string what;
    QVariantList response;
    Color color;
  } rows[] = {
      {"each channel in its place", granted(1, 0, 128 / 255.0), 0xFF0080},
      {"rounded to the nearest", granted(0.4 / 255, 0.6 / 255, 254.6 / 255), 0x0001FF},
      {"below the range", granted(-0.01, 0, 0), {}},
      {"above the range", granted(0, 0, 1.01), {}},
      {"no number", granted(0, std::numeric_limits<double>::quiet_NaN(), 0), {}},
      {"a pair", granted(QPointF(0, 1)), {}},
      {"a text", granted(QStringLiteral("#FFFFFF")), {}},
      {"no colour", {0U, QVariantMap()}, {}},
      {"given up", {1U, QVariantMap{{QStringLiteral("color"), QVariant::fromValue(PortalColor())}}}, {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    portal->responses[QStringLiteral("PickColor")] = row.response;
    pick();
    EXPECT_EQ(answer(), row.color);
  }
}

TEST_F(ColorPickerPortalTest, KnowsWhetherThereIsAPicker) {
  const struct {
    std::string what;
    QVariantMap properties;
    bool isThere;
  } rows[] = {
      {"version 2", {{QStringLiteral("version"), 2U}}, true},
      {"version 1 takes pictures only", {{QStringLiteral("version"), 1U}}, false},
      {"no interface", {}, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    portal->screenshot = row.properties;
    std::optional<bool> available;
    picker.askAvailable([&](bool is) { available = is; });
    ASSERT_TRUE(waitUntil([&] { return available.has_value(); }));
    EXPECT_EQ(*available, row.isThere);
    portal->calls.clear();
    pick();
    EXPECT_EQ(answer().has_value(), row.isThere);
    EXPECT_EQ(portal->calls.contains(QStringLiteral("PickColor")), row.isThere);
  }
}

TEST_F(ColorPickerPortalTest, TakesTheQuestionBackAndEndsWithThePortal) {
  const auto method = QStringLiteral("PickColor");
  portal->undecided << method;
  int answers = 0;
  picker.pick([&](Color) { ++answers; });
  ASSERT_TRUE(waitUntil([&] { return portal->calls[method] == 1; }));
  pick();
  ASSERT_TRUE(waitUntil([&] { return portal->calls[method] == 2; }));
  EXPECT_EQ(portal->open.size(), 1);
  picker.cancel();
  EXPECT_TRUE(waitUntil([&] { return portal->open.isEmpty(); }));

  pick();
  ASSERT_TRUE(waitUntil([&] { return portal->calls[method] == 3; }));
  portal.reset();
  EXPECT_EQ(answer(), Color());
  EXPECT_EQ(answers, 0);
}

}  // namespace
}  // namespace tavrelkin::test
