#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <QSettings>

namespace tavrelkin {

// The toolkit's dialogs over the program's front window, as described in Desktop. What the toolkit remembers for them,
// such as visited folders and the user's own colours, lasts as long as the program and leaves no file.
class Dialogs {
 public:
  Dialogs();

  void message(const std::string& text);
  std::optional<std::uint32_t> color(std::uint32_t initial, const std::string& prompt);
  std::optional<std::string> saveFile(const std::string& filter, const std::string& name);

 private:
  std::optional<QSettings> memory_;
};

}  // namespace tavrelkin
