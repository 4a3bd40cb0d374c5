#pragma once

#include "fakes/TemporaryFolder.h"
#include "fuzz/support/Target.h"

namespace tavrelkin {

// The bytes of an input as a file, and the desktop of its reader, without any message. All inputs use the same file.
class FileInput {
 public:
  FileInput(const std::uint8_t* data, std::size_t size)
      : bytes(data, data + size), file(folder().write(kName, bytes)), desktop_(freshDesktop()) {}

  const String bytes;
  const Ref<FolderItem> file;

  // What the file holds now.
  String content() const { return folder().read(kName); }

  // Ends the program where the user has been told anything.
  void requireSilence() const { require(desktop_.messages.empty(), "there is nothing to say"); }

 private:
  static constexpr const char* kName = "input";

  static const TemporaryFolder& folder() {
    static const TemporaryFolder shared;
    return shared;
  }

  const FakeDesktop& desktop_;
};

}  // namespace tavrelkin
