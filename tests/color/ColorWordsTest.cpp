#include <set>

#include <gtest/gtest.h>

#include "color/ColorWords.h"

namespace tavrelkin {
namespace {

TEST(ColorWordsTest, NameColorsAsPeopleDo) {
  const std::pair<std::uint32_t, const char*> rows[] = {
      {0x000000, "black"},      {0x444444, "dark gray"},     {0x808080, "gray"},
      {0xD3D3D3, "light gray"}, {0xFFFFFF, "white"},         {0xFF0000, "red"},
      {0xFFA500, "orange"},     {0xFFFF00, "yellow"},        {0x00FF00, "green"},
      {0x006400, "dark green"}, {0x00FFFF, "cyan"},          {0x0000FF, "blue"},
      {0x000080, "dark blue"},  {0x70ABFF, "light blue"},    {0x800080, "dark magenta"},
      {0xFF00FF, "magenta"},    {0xFF69B4, "light pink"},    {0xFFC0CB, "very light red"},
      {0x8B4513, "brown"},      {0x708090, "grayish blue"},  {0x9ACD32, "yellowish green"},
      {0x8A2BE2, "purple"},     {0x110000, "very dark red"},
  };
  for (const auto& [rgb, words] : rows)
    EXPECT_EQ(colorInWords(Color{rgb}), words) << std::hex << rgb;
  EXPECT_EQ(colorInWordsAndNumbers(Color{0xFF8000}), "orange, 255.128.0, #FF8000");
}

// Every colour has a name, and there are few enough names to learn them.
TEST(ColorWordsTest, NameEveryColor) {
  std::set<String> names;
  for (Int32 i = 0; i < 52 * 52 * 52; ++i)
    names.insert(colorInWords(RGB(i / 2704 * 5, i / 52 % 52 * 5, i % 52 * 5)));
  EXPECT_FALSE(names.contains(""));
  EXPECT_LT(names.size(), 120u);
}

}  // namespace
}  // namespace tavrelkin
