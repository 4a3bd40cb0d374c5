#include <array>
#include <cstdint>
#include <ios>
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "color/zrXYZ.h"
#include "runtime/core/base/Exceptions.h"

namespace tavrelkin {
namespace {

// The colours that dichromats see, as computed by another program in another language. An error in the last bit of a
// power changes no entry; an error in the last digit of a constant of the model changes some. Each line has a colour,
// then for each gamma (1.0, 1.7, 1.8, 2.2 and 0.0001) the colours that are seen with deficiency 0, 1 and 2.
constexpr double kTableGammas[] = {1.0, 1.7, 1.8, 2.2, 0.0001};
constexpr std::string_view kDichromatTable = R"(
FFFFFE FFFFFD FFFFFF FFFFFF FFFFFE FFFFFF FFFFFF FFFFFE FFFFFE FFFFFF FFFFFE FFFFFE FFFFFF FFFFFF FFFFFF FFFFFF
DAE7D9 FAE1D5 FFD4DC ECE1FF F2E2D6 FFDADB E5E2F9 F1E2D6 FFDADB E5E3F8 EFE2D6 FFDCDB E3E3F4 FFFFFF FFFFFF FFFFFF
BCFB6A FFE263 FFCE70 DFE4FF FFE563 FFD871 D8E9FF FFE664 FFD971 D7EAFF FFE764 FFDC72 D5ECFE FFFF00 FFFFFF FFFFFF
C1335D 535477 6C5057 C13740 60617A 755D56 C0393D 62637A 775F56 C0393D 6B6A7A 7E6756 C03A3D FFFF00 FFFFFF FFFFFF
7150FE 3C60FF 3B64F6 616476 0066FF 006EE6 566F7A 0067FF 006FDD 53717B 006DE8 0074C7 487881 FFFF00 FFFFFF FFFFFF
F7E628 FFDD26 FFC52B FFC9EC FFE127 FFD22E FFD2E7 FFE127 FFD32E FFD3E7 FFE327 FFD731 FFD6E6 FFFF00 FFFFFF FFFFFF
F39BE2 B2B1F2 D0A9DE F6A1BD ADB4F4 C0B1DD F1A3B3 ACB5F4 BFB2DD F1A3B2 ABB7F5 BCB4DD F0A5B1 FFFF00 FFFFFF FFFFFF
7751E5 4461FA 4763DF 6B6273 2165FE 1B6CDD 636A75 1366FF 006DDD 626B76 006AE3 0070C4 5C717A FFFF00 FFFFFF FFFFFF
09CD77 B79B63 D19082 20BEE0 C2AB69 D5A27F 40C1D5 C2AC6A D5A47F 45C1D4 C5B16C D5AA7F 56C2D2 FFFF00 FFFFFF FFFFFF
5EAD0F C0900C F08113 7D96B0 B3960B CD8C1B 789EAE B2970A CA8D1D 789EAE AF9900 C39125 78A1AD FFFF00 FFFFFF FFFFFF
128917 856612 A45C1C 28788D 867112 986920 367D8A 867212 976A20 387E8A 867511 946F24 417F89 FFFF00 FFFFFF FFFFFF
EEDCC1 F9DCC1 FFCEC3 FFD4F9 F0DDC1 FFD4C2 FAD6EB EFDDC1 FFD4C2 F9D6EA EDDEC1 FFD6C2 F7D7E7 FFFFFF FFFFFF FFFFFF
7BDBCF D7C3C1 F2B8D6 8BD5FB D3C6C3 E0C0D4 89D7ED D2C7C3 DFC1D4 89D7EB D2C8C4 DCC3D4 8AD7E8 FFFF00 FFFFFF FFFFFF
1B9AB5 827EA0 867ABD 219AB6 8687A7 8485B9 229BAB 8688A7 8486B9 229CAB 888BAA 858AB8 219CA8 FFFF00 FFFFFF FFFFFF
)";

constexpr Double kInfinity = std::numeric_limits<Double>::infinity();
constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();

void set(zrXYZ& xyz, Double x, Double y, Double z) {
  xyz.x = x;
  xyz.y = y;
  xyz.z = z;
}

using Seen = std::array<std::uint32_t, 3>;

// The colours that are seen with each deficiency.
Seen seen(const zrXYZ& xyz) {
  Seen all{};
  for (std::size_t i = 0; i < all.size(); ++i)
    all.at(i) = xyz.getDichromatTranformation(static_cast<Int32>(i), RGB(1, 2, 3)).bits;
  return all;
}

Seen seen(std::uint32_t color, Double gamma) {
  zrXYZ xyz(kBlack);
  xyz.gamma = gamma;
  xyz.XYZFromRGB(Color{color});
  return seen(xyz);
}

TEST(DichromatTest, SeesTheTable) {
  std::istringstream table{std::string(kDichromatTable)};
  int rows = 0;
  for (std::uint32_t color = 0; table >> std::hex >> color; ++rows) {
    for (const Double gamma : kTableGammas) {
      Seen expected{};
      for (std::uint32_t& each : expected)
        table >> each;
      EXPECT_EQ(seen(color, gamma), expected) << std::hex << color << " at " << gamma;
    }
  }
  EXPECT_EQ(rows, 14);
}

TEST(DichromatTest, AGammaWrittenAfterwardsOnlyEncodesUntilAColorIsTaken) {
  zrXYZ xyz(Color{0x336699});
  EXPECT_EQ(seen(xyz), (Seen{0x536194, 0x496399, 0x256D75}));
  xyz.gamma = 1.0;
  EXPECT_EQ(seen(xyz), (Seen{0x151E4D, 0x101F53, 0x03272E}));
  xyz.XYZFromRGB(Color{0x336699});
  xyz.initClass();
  EXPECT_EQ(xyz.gamma, 2.2);
  EXPECT_EQ(seen(xyz), (Seen{0x9EA1C5, 0xA09FCC, 0x7BABB8}));
}

TEST(DichromatTest, EndsAtTheBoundsForGammasWithoutSense) {
  // A colour, a gamma, and the colour that is seen with each deficiency.
  const std::tuple<std::uint32_t, Double, std::uint32_t> rows[] = {
      {0x000000, 0.0, 0xFFFFFF},   // every channel becomes 1
      {0x000000, -1.8, 0},         // infinite, and then no number
      {0x808080, -1.8, 0xFFFFFF},  // above 1 throughout
      {0x70ABFE, kInfinity, 0},   {0x70ABFF, -kInfinity, 0},
      {0x70ABFE, kNaN, 0},        {0xFFFFFF, kNaN, 0xFFFFFF},  // 1 to any power is 1
  };
  for (const auto& [color, gamma, same] : rows)
    EXPECT_EQ(seen(color, gamma), (Seen{same, same, same})) << std::hex << color << " at " << gamma;
}

// Each row divides by zero, or starts from NaN or an infinity.
TEST(DichromatTest, AnyTristimulusValuesGiveAColor) {
  const std::tuple<Double, Double, Double, Int32, Color> rows[] = {
      {0.5, 0.5, -1, 0, RGB(0, 182, 255)}, {0.5, 0.5, -1, 2, RGB(0, 209, 213)},
      {kNaN, kNaN, kNaN, 0, kBlack},       {kInfinity, 0.5, -kInfinity, 2, kBlack},
      {0.5, kInfinity, 0.5, 1, kBlack},    {0.171, 0.5, 0.329, 2, kBlack},  // above the confusion point
  };
  for (const auto& [x, y, z, index, color] : rows) {
    zrXYZ xyz(kWhite);
    set(xyz, x, y, z);
    EXPECT_EQ(xyz.getDichromatTranformation(index, kWhite), color) << x << ", " << y << ", " << z;
  }
  for (const Int32 index : {-1, 3})
    EXPECT_THROW(zrXYZ(kWhite).getDichromatTranformation(index, kWhite), OutOfBoundsException) << index;
}

// The two conversions to a colour. A factor that is off by its last digit changes one of the rows with large values.
TEST(zrXYZTest, ConvertsToAColorAndToWholeParts) {
  const std::tuple<Double, Double, Double, Color, Color> rows[] = {
      {0.3, 0.3, 0.3, RGB(91, 72, 69), kBlack},
      {0.1, 0.5, 0.2, RGB(0, 216, 27), kBlack},                // red is -123.8
      {0.9505, 1.0, 1.089, RGB(255, 254, 255), RGB(0, 1, 0)},  // green is 254.99
      {26762.671, 52303, 19135, RGB(88, 255, 255), RGB(255, 255, 255)},
      {28759, 13818.348, 46972, RGB(255, 54, 255), RGB(255, 0, 255)},
      {40546, 43361, 6706.768, RGB(255, 255, 164), RGB(255, 255, 255)},
      {64808.865, 166755, 119816, RGB(0, 255, 255), RGB(158, 255, 255)},
      {109968, 56053.892, 133212, kWhite, RGB(255, 54, 255)},
      {181281, 160652, 9580.747, RGB(255, 255, 0), RGB(255, 255, 174)},
  };
  for (const auto& [x, y, z, color, parts] : rows) {
    zrXYZ xyz(kBlack);
    set(xyz, x, y, z);
    EXPECT_EQ(xyz.RGBFromXYZ(x, y, z), color) << x;
    EXPECT_EQ(xyz.getRGBColor(), parts) << x;
  }
}

}  // namespace
}  // namespace tavrelkin
