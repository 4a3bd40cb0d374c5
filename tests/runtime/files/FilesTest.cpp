// What is read of a file, places of files, and how a file is replaced: whole, or not at all.

#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>

#include "support/RuntimeTest.h"
#include "support/TemporaryFolder.h"

namespace tavrelkin {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class FilesTest : public RuntimeTest {
 protected:
  // Begins to replace a file by "new", has something happen, and closes.
  void replace(
      const std::string& name, const std::function<void()>& meanwhile = [] {}) const {
    const auto stream = folder.item(name)->CreateBinaryFile("Type");
    ASSERT_TRUE(stream) << name;
    for (const char c : std::string("new"))
      stream->WriteByte(c);
    meanwhile();
    stream->Close();
  }
  mode_t permissions(const std::string& name) const {
    struct stat state {};
    EXPECT_EQ(stat(folder.path(name).c_str(), &state), 0);
    return state.st_mode & 07777;
  }
  const TemporaryFolder folder;
};

// Larger than any block that may be read at once; each byte tells where it is.
TEST_F(FilesTest, AnyPlaceOfALargeFileIsReadAndWhatLiesOutsideIsZero) {
  std::string bytes(300001, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = static_cast<char>(i % 251 + 1);
  const auto stream = folder.write("file", bytes)->OpenAsBinaryFile(false);
  for (Int32 i = 0; !stream->EOF(); ++i)
    ASSERT_EQ(stream->ReadByte(), i % 251 + 1) << i;
  const std::int64_t size = stream->Position;
  for (const std::int64_t place : {std::int64_t{1} << 40, size, size - 1, std::int64_t{65535}, std::int64_t{-1}}) {
    stream->Position = place;
    EXPECT_EQ(stream->EOF(), place >= size);
    const auto at = [&](std::int64_t i) { return i < 0 || i >= size ? 0 : static_cast<Int32>(i % 251 + 1); };
    EXPECT_EQ(stream->ReadShort(), static_cast<std::int16_t>(at(place) << 8 | at(place + 1))) << place;
  }
  EXPECT_EQ(size, 300001);
}

TEST_F(FilesTest, WritesGoWherePositionStandsUntilTheStreamIsClosed) {
  const auto stream = folder.item("file")->CreateBinaryFile("Type");
  stream->WriteShort(0x6162);
  stream->Position = 1;
  stream->WriteByte(0x158);
  stream->Position = 4;
  stream->WriteByte('e');
  stream->Position = -1;
  EXPECT_THROW(stream->WriteByte('f'), OutOfBoundsException);
  stream->Close();
  stream->WriteByte('g');
  EXPECT_EQ(folder.read("file"), std::string("aX\0\0e", 5));
}

TEST_F(FilesTest, TheOldFileStandsUntilTheNewOneIsClosed) {
  folder.write("file", "the old one");
  replace("file", [&] { EXPECT_EQ(folder.read("file"), "the old one"); });
  folder.item("file")->CreateBinaryFile("Type")->WriteByte('x');
  EXPECT_EQ(folder.read("file"), "new") << "the second stream was never closed";
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(FilesTest, PermissionsStayAndNewFilesHaveTheUsualOnes) {
  folder.write("file", "old");
  fs::permissions(folder.path("file"), fs::perms{0660});
  replace("file");
  EXPECT_EQ(permissions("file"), 0660U);
  const mode_t before = umask(027);
  replace("new");
  umask(before);
  EXPECT_EQ(permissions("new"), 0640U);
}

// One link is relative to its own folder, which is itself reached through a link.
TEST_F(FilesTest, ALinkStaysALink) {
  fs::create_directories(folder.path("a/deep"));
  fs::create_directory_symlink("a/deep", folder.path("alias"));
  folder.write("a/file", "old");
  fs::create_symlink("../file", folder.path("a/deep/link"));
  fs::create_symlink(folder.path("alias/link"), folder.path("link"));
  fs::create_symlink("missing", folder.path("dangling"));
  EXPECT_FALSE(folder.item("dangling")->Exists());
  for (const auto& [name, target] : {std::pair{"link", "a/file"}, {"dangling", "missing"}}) {
    replace(name);
    EXPECT_EQ(folder.read(target), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path(name))) << name;
  }
  EXPECT_TRUE(fs::is_symlink(folder.path("a/deep/link")));
}

TEST_F(FilesTest, AnyNameThatTheDiskTakesIsAFileAndWhatIsNoFileIsLeftAlone) {
  for (const auto& name : {std::string(), std::string("../a"), std::string("a\0b", 3)})
    EXPECT_FALSE(folder.item("")->Child(name)) << name;
  for (const auto& name : {std::string(255, 'x'), std::string("\n\"'*\xFF")}) {
    replace(name);
    EXPECT_EQ(folder.read(name), "new") << name;
  }
  fs::create_directory(folder.path("folder"));
  fs::create_symlink("ring", folder.path("ring"));
  mkfifo(folder.path("pipe").c_str(), 0600);
  folder.write("file", "");
  const Names before = folder.names();
  for (const std::string name : {"folder", "ring", "pipe", "none/file", "file/file"}) {
    EXPECT_FALSE(folder.item(name)->CreateBinaryFile("Type")) << name;
    EXPECT_FALSE(folder.item(name)->OpenAsBinaryFile(false)) << name;
  }
  EXPECT_TRUE(fake().messages.empty()) << "it is the caller who tells";
  EXPECT_EQ(folder.names(), before);
  EXPECT_FALSE(folder.item("file")->OpenAsBinaryFile(true)) << "in place";
}

TEST_F(FilesTest, AFailureOnClosingIsToldAndLeavesTheOldFile) {
  folder.write("file", "the old one");
  const auto stream = folder.item("file")->CreateBinaryFile("Type");
  for (int i = 0; i < 300000; ++i)
    stream->WriteByte(i);
  // No file of this process grows beyond the limit: as on a full disk, the write fails half way.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit lower{100000, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &lower);
  stream->Close();
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(folder.read("file"), "the old one");
  EXPECT_EQ(folder.names(), Names{"file"});
  ASSERT_EQ(fake().messages.size(), 1U);
  EXPECT_EQ(fake().messages[0].find("The file \"file\" was not saved. "), 0U) << fake().messages[0];

  fs::create_directory(folder.path("sub"));
  replace("sub/file", [&] { fs::remove_all(folder.path("sub")); });
  EXPECT_EQ(fake().messages.back(),
            "The file \"file\" was not saved. The folder does not exist.\n\nNothing in its folder has changed.");
}

}  // namespace
}  // namespace tavrelkin
