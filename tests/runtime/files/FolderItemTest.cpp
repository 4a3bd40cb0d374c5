// Places of files, and how a file is replaced: whole, or not at all.

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

// No file of this process grows beyond the limit: as on a full disk, a write fails half way.
class FullDisk {
 public:
  explicit FullDisk(rlim_t limit) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit lower{limit, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &lower);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class FolderItemTest : public RuntimeTest {
 protected:
  // Begins to replace a file by "new", has something happen, and closes.
  void replace(
      const std::string& name, const std::function<void()>& meanwhile = [] {}) const {
    const auto stream = folder.item(name)->CreateBinaryFile("Type");
    ASSERT_TRUE(stream);
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

TEST_F(FolderItemTest, AChildNeedNotExistButNeedsAName) {
  const auto here = folder.item("");
  EXPECT_FALSE(here->Child("a.aco")->Exists());
  for (const auto& name : {std::string(), std::string("../a"), std::string("a\0b", 3)})
    EXPECT_FALSE(here->Child(name)) << name;
}

TEST_F(FolderItemTest, TheOldFileStandsUntilTheNewOneIsClosed) {
  folder.write("file", "the old one");
  replace("file", [&] { EXPECT_EQ(folder.read("file"), "the old one"); });
  EXPECT_EQ(folder.read("file"), "new");
  EXPECT_EQ(folder.names(), Names{"file"});

  folder.item("file")->CreateBinaryFile("Type")->WriteByte('x');
  EXPECT_EQ(folder.read("file"), "new") << "the stream was never closed";
  EXPECT_EQ(folder.names(), Names{"file"});
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(FolderItemTest, AnyNameThatTheDiskTakesCanBeSaved) {
  for (const auto& name : {std::string(255, 'x'), std::string("\n\"'*\xFF")}) {
    replace(name);
    EXPECT_EQ(folder.read(name), "new") << name;
  }
}

TEST_F(FolderItemTest, PermissionsStayAndNewFilesHaveTheUsualOnes) {
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
TEST_F(FolderItemTest, ALinkStaysALink) {
  fs::create_directories(folder.path("a/deep"));
  fs::create_directory_symlink("a/deep", folder.path("alias"));
  folder.write("a/file", "old");
  fs::create_symlink("../file", folder.path("a/deep/link"));
  fs::create_symlink(folder.path("alias/link"), folder.path("link"));
  replace("link");
  EXPECT_EQ(folder.read("a/file"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path("link")));
  EXPECT_TRUE(fs::is_symlink(folder.path("a/deep/link")));

  fs::create_symlink("missing", folder.path("dangling"));
  EXPECT_FALSE(folder.item("dangling")->Exists());
  replace("dangling");
  EXPECT_EQ(folder.read("missing"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path("dangling")));
}

TEST_F(FolderItemTest, WhatIsNoFileIsNeitherReadNorReplaced) {
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
  EXPECT_FALSE(folder.item("none")->OpenAsBinaryFile(false));
  EXPECT_FALSE(folder.item("file")->OpenAsBinaryFile(true)) << "in place";
}

TEST_F(FolderItemTest, AFailureOnClosingIsToldAndLeavesTheOldFile) {
  folder.write("file", "the old one");
  {
    const auto stream = folder.item("file")->CreateBinaryFile("Type");
    for (int i = 0; i < 300000; ++i)
      stream->WriteByte(i);
    const FullDisk full(100000);
    stream->Close();
  }
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
