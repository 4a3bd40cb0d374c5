#include <string>

#include "support/RuntimeTest.h"
#include "support/TemporaryFolder.h"

namespace tavrelkin {
namespace {

class BinaryStreamTest : public RuntimeTest {
 protected:
  Ref<BinaryStream> reading(const std::string& bytes) const {
    return folder.write("file", bytes)->OpenAsBinaryFile(false);
  }
  const TemporaryFolder folder;
};

TEST_F(BinaryStreamTest, ShortsAreSignedAndHaveTheHighByteFirst) {
  const struct {
    Int32 written;
    std::string bytes;
    Int32 read;
  } rows[] = {{0x12345, "\x23\x45", 0x2345}, {-2, "\xFF\xFE", -2}, {32768, std::string("\x80\0", 2), -32768}};
  for (const auto& row : rows) {
    const auto out = folder.item("file")->CreateBinaryFile("Type");
    out->WriteShort(row.written);
    out->Close();
    EXPECT_EQ(folder.read("file"), row.bytes);
    EXPECT_EQ(folder.item("file")->OpenAsBinaryFile(false)->ReadShort(), row.read) << row.written;
  }
}

TEST_F(BinaryStreamTest, WhatLiesOutsideOfTheFileReadsAsZero) {
  const struct {
    std::int64_t position;
    Int32 value;
    bool atEnd;
  } rows[] = {{-2, 0, false},     {-1, 0x81, false}, {0, -32510, false},
              {2, 0x0300, false}, {3, 0, true},      {std::int64_t{1} << 40, 0, true}};
  const auto stream = reading("\x81\x02\x03");
  for (const auto& [position, value, atEnd] : rows) {
    stream->Position = position;
    EXPECT_EQ(stream->EOF(), atEnd) << position;
    EXPECT_EQ(stream->ReadShort(), value) << position;
    EXPECT_EQ(stream->Position, position + 2);
  }
}

// Larger than any block that may be read at once; each byte tells where it is.
TEST_F(BinaryStreamTest, ReadsAnyPlaceOfALargeFile) {
  std::string bytes(300001, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = static_cast<char>(i % 251);
  const auto stream = reading(bytes);
  for (Int32 i = 0; !stream->EOF(); ++i)
    ASSERT_EQ(stream->ReadByte(), i % 251) << i;
  EXPECT_EQ(stream->Position, 300001);
  for (const Int32 place : {300000, 0, 65536, 65535, 1}) {
    stream->Position = place;
    EXPECT_EQ(stream->ReadByte(), place % 251) << place;
  }
}

TEST_F(BinaryStreamTest, WritesGoWherePositionStandsUntilTheStreamIsClosed) {
  const auto stream = folder.item("file")->CreateBinaryFile("Type");
  stream->WriteShort(0x6162);
  stream->Position = 1;
  stream->WriteByte(0x158);
  stream->Position = 4;
  stream->WriteByte('e');
  stream->Position = -1;
  EXPECT_THROW(stream->WriteByte('f'), OutOfBoundsException);
  stream->Close();
  stream->Position = 0;
  stream->WriteByte('g');
  stream->Close();
  EXPECT_EQ(folder.read("file"), std::string("aX\0\0e", 5));
}

}  // namespace
}  // namespace tavrelkin
