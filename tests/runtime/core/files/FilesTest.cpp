// Reading files, their paths, and replacing their contents in full or not at all.

#include <csignal>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "fakes/Disk.h"
#include "fakes/RuntimeTest.h"
#include "fakes/TemporaryFolder.h"

namespace tavrelkin {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

// An access list: the owner and the user 12345 can read and write, others have no access.
const std::string kAccessList(
    "\2\0\0\0"
    "\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\x39\x30\0\0\4\0\0\0\xFF\xFF\xFF\xFF"
    "\x10\0\6\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF",
    44);

class FilesTest : public RuntimeTest {
 protected:
  // Writes "new" to a stream that replaces a file, calls `meanwhile`, and closes the stream.
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
  ino_t node(const std::string& name) const {
    struct stat state {};
    EXPECT_EQ(stat(folder.path(name).c_str(), &state), 0);
    return state.st_ino;
  }
  void setAttribute(const std::string& file, const char* name, const std::string& value) const {
    ASSERT_EQ(setxattr(folder.path(file).c_str(), name, value.data(), value.size(), 0), 0) << name;
  }
  std::string attribute(const std::string& file, const char* name) const {
    std::string value(1000, '\0');
    const ssize_t size = getxattr(folder.path(file).c_str(), name, value.data(), value.size());
    return size < 0 ? "none" : value.substr(0, static_cast<std::size_t>(size));
  }
  const TemporaryFolder folder;
};

// The file is larger than any block that is read at once, and neighbouring bytes differ.
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

TEST_F(FilesTest, AnAccessListAndAttributesStay) {
  folder.write("file", "old");
  fs::permissions(folder.path("file"), fs::perms{0600});
  setAttribute("file", "system.posix_acl_access", kAccessList);
  setAttribute("file", "user.comment", std::string("red\0green", 9));
  setAttribute("file", "user.empty", "");
  const ino_t before = node("file");
  replace("file");
  EXPECT_NE(node("file"), before) << "replaced whole";
  EXPECT_EQ(attribute("file", "system.posix_acl_access"), kAccessList);
  EXPECT_EQ(attribute("file", "user.comment"), std::string("red\0green", 9));
  EXPECT_EQ(attribute("file", "user.empty"), "");
  EXPECT_EQ(permissions("file"), 0660U) << "the list says so";

  folder.write("plain", "old");
  fs::permissions(folder.path("plain"), fs::perms{0660});
  setAttribute("", "system.posix_acl_default", kAccessList);
  replace("plain");
  EXPECT_EQ(attribute("plain", "system.posix_acl_access"), "none") << "not the folder's";
  EXPECT_EQ(permissions("plain"), 0660U);
}

TEST_F(FilesTest, AFileOfSeveralNamesKeepsThem) {
  folder.write("file", "the old one");
  fs::create_hard_link(folder.path("file"), folder.path("other"));
  replace("file");
  EXPECT_EQ(folder.read("other"), "new");
  EXPECT_EQ(folder.names(), (Names{"file", "other"}));
}

// The folder accepts no new file, or does not let a user replace the file of another user.
TEST_F(FilesTest, WhatCannotBeReplacedIsWrittenInPlace) {
  const struct {
    const char* name;
    mode_t folderMode;
    mode_t fileMode;
    bool isOwn;
    bool isWritten;
  } rows[] = {
      {"no new file", 0555, 0644, true, true},
      {"nor this one", 0555, 0444, true, false},
      {"no replacement", 01777, 0666, false, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    if (!row.isOwn && geteuid() != 0) continue;  // only root can make another user's file
    fs::permissions(folder.path(""), fs::perms{0755});
    fs::remove(folder.path("file"));
    folder.write("file", "the old one");
    fs::permissions(folder.path("file"), fs::perms{row.fileMode});
    if (row.isOwn) PlainUser::own(folder.path("file"));
    fs::permissions(folder.path(""), fs::perms{row.folderMode});
    const ino_t before = node("file");
    const PlainUser user;
    if (row.isWritten)
      replace("file");
    else
      EXPECT_FALSE(folder.item("file")->CreateBinaryFile("Type"));
    EXPECT_EQ(folder.read("file"), row.isWritten ? "new" : "the old one");
    EXPECT_EQ(node("file"), before);
    EXPECT_EQ(folder.names(), Names{"file"});
  }
  fs::permissions(folder.path(""), fs::perms::owner_all);
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(FilesTest, AFailureOnClosingIsToldAndLeavesTheOldFile) {
  const std::string longer(200000, 'o');
  for (const auto& [old, names] : {std::pair{"the old one", 1}, {"the old one", 2}, {longer.c_str(), 2}}) {
    SCOPED_TRACE(names);
    folder.write("file", old);
    fs::remove(folder.path("other"));
    if (names == 2) fs::create_hard_link(folder.path("file"), folder.path("other"));
    const Names before = folder.names();
    const auto stream = folder.item("file")->CreateBinaryFile("Type");
    for (int i = 0; i < 300000; ++i)
      stream->WriteByte(i);
    {
      const FullDisk full(100000);
      stream->Close();
    }
    EXPECT_EQ(folder.read("file"), old);
    EXPECT_EQ(folder.names(), before);
    EXPECT_EQ(fake().messages.back().find("The file \"file\" was not saved. "), 0U) << fake().messages.back();
    EXPECT_NE(fake().messages.back().find("Nothing in its folder has changed."), std::string::npos);
  }
  EXPECT_EQ(fake().messages.size(), 3U);

  fs::create_directory(folder.path("sub"));
  replace("sub/file", [&] { fs::remove_all(folder.path("sub")); });
  EXPECT_EQ(fake().messages.back(),
            "The file \"file\" was not saved. The folder does not exist.\n\nNothing in its folder has changed.");
}

}  // namespace
}  // namespace tavrelkin
