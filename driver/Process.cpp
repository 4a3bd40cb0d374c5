#include "driver/Process.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavrelkin::test {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  result.reserve(texts.size() + 1);
  for (auto& text : texts)
    result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

}  // namespace

Home::Home() {
  std::string name = fs::temp_directory_path() / "tavrelkin-test-XXXXXX";
  if (!mkdtemp(name.data())) fail("mkdtemp");
  path_ = name;
  fs::create_directory(path_ / "runtime");
  fs::permissions(path_ / "runtime", fs::perms::owner_all);
}

// A killed program may have left files, and a program that is still ending may add more.
Home::~Home() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::vector<std::string> Home::environment(const std::string& display, const std::string& bus) const {
  const char* const path = std::getenv("PATH");
  const std::string home = path_;
  return {
      std::string("PATH=") + (path ? path : "/usr/bin:/bin"),
      "HOME=" + home,
      "XDG_DATA_HOME=" + home + "/data",
      "XDG_CONFIG_HOME=" + home + "/config",
      "XDG_CACHE_HOME=" + home + "/cache",
      "XDG_RUNTIME_DIR=" + home + "/runtime",
      "TMPDIR=" + home,
      "XAUTHORITY=" + home + "/xauthority",
      "DBUS_SESSION_BUS_ADDRESS=" + (bus.empty() ? "disabled:" : bus),
      "LANG=C.UTF-8",
      "DISPLAY=" + display,
  };
}

Process::Process(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                 const std::string& input)
    : input_(newFile(input)), pid_(start(command, environment)) {}

Process::File Process::newFile(const std::string& content) {
  File file(fdopen(memfd_create("tavrelkin-test", MFD_CLOEXEC), "w+"), &std::fclose);
  if (!file || std::fwrite(content.data(), 1, content.size(), file.get()) != content.size()) fail("memfd_create");
  std::rewind(file.get());
  return file;
}

// Opens the file again, since the process shares its position.
std::string Process::contentOf(const File& file) {
  std::ifstream stream("/proc/self/fd/" + std::to_string(fileno(file.get())));
  return {std::istreambuf_iterator<char>(stream), {}};
}

pid_t Process::start(std::vector<std::string> command, std::vector<std::string> environment) const {
  const auto argv = pointers(command);
  const auto envp = pointers(environment);
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child < 0) fail("fork");
  if (child > 0) return child;

  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(127);
  dup2(fileno(input_.get()), STDIN_FILENO);
  dup2(fileno(output_.get()), STDOUT_FILENO);
  dup2(fileno(errors_.get()), STDERR_FILENO);
  execvpe(argv[0], argv.data(), envp.data());
  dprintf(STDERR_FILENO, "%s can't be started.\n", argv[0]);
  _exit(127);
}

std::string Process::firstLine() {
  waitUntil([this] { return output().find('\n') != std::string::npos || !isRunning(); });
  const std::string said = output();
  if (said.find('\n') == std::string::npos) throw std::runtime_error("A program did not start. " + errors());
  return said.substr(0, said.find('\n'));
}

int Process::status(const std::string& name) const {
  std::ifstream lines("/proc/" + std::to_string(pid_) + "/status");
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(name + ":")) return std::stoi(line.substr(name.size() + 1));
  return 0;
}

std::optional<int> Process::waitForExit(std::chrono::milliseconds longest) {
  const auto hasEnded = [this] {
    int status = 0;
    if (!exitStatus_ && waitpid(pid_, &status, WNOHANG) == pid_)
      exitStatus_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return exitStatus_.has_value();
  };
  waitUntil(hasEnded, longest);
  return exitStatus_;
}

void Process::end(int signal) {
  if (isRunning()) kill(pid_, signal);
  waitForExit();
}

}  // namespace tavrelkin::test
