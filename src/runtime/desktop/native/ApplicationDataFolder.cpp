#include "runtime/desktop/native/ApplicationDataFolder.h"

#include <filesystem>
#include <system_error>

#include <QDir>
#include <QFile>

namespace tavrelkin {

std::string makeApplicationDataFolder() {
  QString dataHome = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(dataHome)) dataHome = QDir::homePath() + QStringLiteral("/.local/share");
  const std::filesystem::path folder = QFile::encodeName(dataHome + QStringLiteral("/tavrelkin")).toStdString();
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

}  // namespace tavrelkin
