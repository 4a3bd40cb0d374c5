#include "e2e/support/Home.h"

#include <cstdlib>
#include <stdexcept>

namespace tavrelkin::test {

namespace fs = std::filesystem;

Home::Home() {
  std::string name = fs::temp_directory_path() / "tavrelkin-test-XXXXXX";
  if (!mkdtemp(name.data())) throw std::runtime_error("No folder can be made for temporary files.");
  path_ = name;
  fs::create_directory(path_ / "runtime");
  fs::permissions(path_ / "runtime", fs::perms::owner_all);
}

// A program that was killed may have left anything behind, and one that still ends may add to it.
Home::~Home() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::vector<std::string> Home::environment(const std::string& display, const std::string& bus) const {
  const char* const path = std::getenv("PATH");
  const std::string home = path_;
  std::vector<std::string> result{
      std::string("PATH=") + (path ? path : "/usr/bin:/bin"),
      "HOME=" + home,
      "XDG_DATA_HOME=" + home + "/data",
      "XDG_CONFIG_HOME=" + home + "/config",
      "XDG_CACHE_HOME=" + home + "/cache",
      "XDG_RUNTIME_DIR=" + home + "/runtime",
      "XAUTHORITY=" + home + "/xauthority",
      "DBUS_SESSION_BUS_ADDRESS=" + (bus.empty() ? "disabled:" : bus),
      "LANG=C.UTF-8",
  };
  if (!display.empty()) result.push_back("DISPLAY=" + display);
  return result;
}

}  // namespace tavrelkin::test
