// Swatch files to and from another implementation of the format, Debian's ruby-color.

#include <cstdlib>
#include <string>

#include "support/RuntimeTest.h"
#include "support/TemporaryFolder.h"
#include "tables/zrClut.h"

namespace tavrelkin {
namespace {

class SwatchExchangeTest : public RuntimeTest {
 protected:
  // Runs a program for Ruby in the folder, with the palette's class at hand.
  void ruby(const std::string& program) const {
    folder.write("program.rb", "require 'color/palette/adobecolor'\nPalette = Color::Palette::AdobeColor\n" + program);
    const std::string command = "cd '" + folder.path("").string() + "' && /usr/bin/ruby program.rb";
    ASSERT_EQ(std::system(command.c_str()), 0);
  }

  TemporaryFolder folder;
};

TEST_F(SwatchExchangeTest, AnotherProgramReadsWhatIsWritten) {
  const auto table = New<zrClut>();
  std::string expected;
  for (Int32 i = 0; i <= table->Count; ++i) {
    const Color c = RGB(i, 255 - i, i * 7 % 256);
    table->SetColor(c, i);
    for (const Int32 channel : {c.red(), c.green(), c.blue()})
      expected += std::to_string(channel) + " ";
  }
  ASSERT_TRUE(table->writeSwatch(folder.item("palette.aco")));
  ruby(
      "read = Palette.from_file('palette.aco')\n"
      "File.write('read', read.flat_map { |c| [c.red, c.green, c.blue] }.map { |channel| \"#{channel.round} \" "
      "}.join)");
  EXPECT_EQ(folder.read("read"), expected);
}

TEST_F(SwatchExchangeTest, WhatAnotherProgramWritesIsRead) {
  ruby(R"(
    hues = [[0, 65535, 65535], [21845, 65535, 65535], [43690, 65535, 65535], [0, 0, 32768], [5461, 32768, 65535]]
    read = Palette.new([1, hues.size].pack('n*') + hues.map { |hsb| [1, *hsb, 0].pack('n*') }.join)
    File.binwrite('palette.aco', read.to_aco)
  )");
  const auto table = New<zrClut>();
  ASSERT_TRUE(table->ReadSwatch(folder.item("palette.aco")));
  EXPECT_EQ(table->Count, 5);
  const Color expected[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(127, 127, 127), RGB(255, 191, 127)};
  for (Int32 i = 0; i < 5; ++i)
    EXPECT_EQ(table->getColor(i), expected[i]) << i;
}

}  // namespace
}  // namespace tavrelkin
