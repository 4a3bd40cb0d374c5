#include "e2e/support/Process.h"

#include <cerrno>
#include <csignal>
#include <system_error>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (auto& text : texts)
    result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

}  // namespace

Process::MemoryFile::MemoryFile(const std::string& content) : descriptor_(memfd_create("tavrelkin-test", MFD_CLOEXEC)) {
  if (descriptor_ < 0) fail("memfd_create");
  const auto size = static_cast<ssize_t>(content.size());
  if (pwrite(descriptor_, content.data(), content.size(), 0) != size) fail("pwrite");
}

Process::MemoryFile::~MemoryFile() {
  close(descriptor_);
}

// The process shares the descriptor's position, so that it is left alone.
std::string Process::MemoryFile::content() const {
  std::string result;
  char buffer[4096];
  for (;;) {
    const ssize_t count = pread(descriptor_, buffer, sizeof buffer, static_cast<off_t>(result.size()));
    if (count <= 0) return result;
    result.append(buffer, static_cast<std::size_t>(count));
  }
}

Process::Process(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                 const std::string& input)
    : input_(input) {
  auto arguments = command;
  auto variables = environment;
  const auto argv = pointers(arguments);
  const auto envp = pointers(variables);
  const pid_t parent = getpid();
  pid_ = fork();
  if (pid_ < 0) fail("fork");
  if (pid_ > 0) return;

  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(127);
  dup2(input_.descriptor(), STDIN_FILENO);
  dup2(output_.descriptor(), STDOUT_FILENO);
  dup2(errors_.descriptor(), STDERR_FILENO);
  execvpe(argv[0], argv.data(), envp.data());
  dprintf(STDERR_FILENO, "%s can't be started.\n", argv[0]);
  _exit(127);
}

Process::~Process() {
  if (!isRunning()) return;
  kill();
  waitpid(pid_, nullptr, 0);
}

std::string Process::output() const {
  return output_.content();
}

std::string Process::errors() const {
  return errors_.content();
}

void Process::lookForExit() {
  int status = 0;
  if (exitStatus_ || waitpid(pid_, &status, WNOHANG) != pid_) return;
  exitStatus_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::optional<int> Process::waitForExit(std::chrono::milliseconds longest) {
  waitUntil(
      [this] {
        lookForExit();
        return exitStatus_.has_value();
      },
      longest);
  return exitStatus_;
}

void Process::terminate() {
  if (isRunning()) ::kill(pid_, SIGTERM);
}

void Process::kill() {
  if (isRunning()) ::kill(pid_, SIGKILL);
}

}  // namespace tavrelkin::test
