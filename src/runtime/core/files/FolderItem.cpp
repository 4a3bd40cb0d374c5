#include "runtime/core/files/FolderItem.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "runtime/core/files/FileReplacement.h"
#include "runtime/core/files/FileSource.h"
#include "runtime/core/system/Dialogs.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

namespace {

bool canBeName(std::string_view text) {
  if (text.empty() || text == "." || text == "..") return false;
  return text.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

}  // namespace

FolderItem::FolderItem(std::string path) : path_(std::move(path)) {}

String FolderItem::Name() const {
  return std::filesystem::path(path_).filename();
}

bool FolderItem::Exists() const {
  std::error_code failed;
  return std::filesystem::exists(path_, failed);
}

Ref<FolderItem> FolderItem::Child(const String& name) const {
  if (!canBeName(name)) return nullptr;
  return New<FolderItem>(std::filesystem::path(path_) / name);
}

Ref<BinaryStream> FolderItem::CreateBinaryFile(const String&) const {
  auto target = std::make_unique<FileReplacement>(path_);
  if (!target->isOpen()) return nullptr;
  return New<BinaryStream>(std::move(target));
}

Ref<BinaryStream> FolderItem::OpenAsBinaryFile(bool forWriting) const {
  if (forWriting) return nullptr;
  auto source = std::make_unique<FileSource>(path_);
  if (!source->isOpen()) return nullptr;
  return New<BinaryStream>(std::move(source));
}

Ref<TextOutputStream> FolderItem::CreateTextFile() const {
  FileReplacement target(path_);
  if (target.isOpen() && target.commit({})) return New<TextOutputStream>();
  MsgBox("The file \"" + path_ + "\" could not be made. " + target.reason());
  return nullptr;
}

Ref<FolderItem> GetSaveFolderItem(const String& filter, const String& defaultName) {
  const auto chosen = desktop().chooseSaveFile(filter, defaultName);
  if (!chosen) return nullptr;
  return New<FolderItem>(*chosen);
}

Ref<FolderItem> SpecialFolder::ApplicationData() {
  const std::string path = desktop().applicationDataFolder();
  if (path.empty()) return nullptr;
  return New<FolderItem>(path);
}

}  // namespace tavrelkin
