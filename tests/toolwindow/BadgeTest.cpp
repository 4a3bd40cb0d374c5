// The badge that warns that a colour is not web-safe.

#include <array>
#include <string_view>

#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

// The cube, a digit for a colour.
constexpr std::string_view kCube =
    "2222220222222"
    "2222003002222"
    "2200343330022"
    "2033434333402"
    "2000434340002"
    "2056004001102"
    "2057650111102"
    "2055750111102"
    "2057650111102"
    "2005570111002"
    "2220060100222"
    "2222200022222"
    "2222222222222";
constexpr std::array<std::uint32_t, 8> kColors{0x000000, 0xFFFFFF, 0xFF00FF, 0xE9E9E9,
                                               0xE8E8E8, 0xA8A8A8, 0xA7A7A7, 0xA9A9A9};
constexpr char kTransparent = '2';

class BadgeTest : public ToolWindowTest {
 protected:
  // The first pixel of the badge that is not as it should be, or nothing.
  String firstFault() const {
    for (std::size_t i = 0; i < kCube.size(); ++i) {
      const auto c = Color{kColors.at(static_cast<std::size_t>(kCube[i] - '0'))};
      const auto x = static_cast<Int32>(i % 13);
      const auto y = static_cast<Int32>(i / 13);
      const Color wanted = kCube[i] == kTransparent ? window->BackColor.get() : c;
      if (window->imgWebSafe.Graphics().Pixel(x, y) != wanted) return Str(x) + ", " + Str(y);
    }
    return "";
  }
};

TEST_F(BadgeTest, ShowsItsCubeOnTheWindowWheneverItShows) {
  EXPECT_TRUE(window->imgWebSafe.Visible) << "the start colour is not web-safe";
  EXPECT_EQ(firstFault(), "");
  window->setColor(Color{0xFF9900}, false);
  EXPECT_FALSE(window->imgWebSafe.Visible);
  window->setColor(Color{0x123456}, false);
  EXPECT_TRUE(window->imgWebSafe.Visible);
  EXPECT_EQ(firstFault(), "");
}

}  // namespace
}  // namespace tavrelkin
