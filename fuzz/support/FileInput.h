#pragma once

#include "fakes/TemporaryFolder.h"
#include "fuzz/support/Target.h"

namespace tavrelkin {

// A file with the input's bytes, and a desktop without messages. All inputs use the same file.
class FileInput {
 public:
  FileInput(const std::uint8_t* data, std::size_t size)
      : bytes(data, data + size), file(folder().write(kName, bytes)), desktop_(freshDesktop()) {}

  const String bytes;
  const Ref<FolderItem> file;

  // The file's present contents.
  String content() const { return folder().read(kName); }

  // Ends the program if the user has seen a message.
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
