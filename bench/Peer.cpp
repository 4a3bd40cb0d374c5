#include "bench/Peer.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <QStandardPaths>

#include "driver/Process.h"

namespace tavrelkin::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Counts the pixels that differ: a random colour or a blinking caret must not matter.
bool isNearlyTheSame(const std::vector<std::uint32_t>& one, const std::vector<std::uint32_t>& other) {
  std::size_t different = 0;
  for (std::size_t i = 0; i < one.size(); ++i)
    different += one[i] != other[i] ? 1 : 0;
  return different * 20 < one.size();
}

// The previous program's window closes only after the end of its process.
void waitUntilEmpty(const PeerDesktop& desktop) {
  if (!test::waitUntil([&] { return desktop.windows.all().empty(); }))
    throw std::runtime_error("The previous window does not close.");
}

std::string fileName(const std::string& path) {
  return std::filesystem::path(path).filename();
}

}  // namespace

bool Program::isInstalled() const {
  return !QStandardPaths::findExecutable(QString::fromStdString(path)).isEmpty();
}

RunningProgram::RunningProgram(PeerDesktop& desktop, const Program& program) : desktop_(desktop), program_(program) {
  waitUntilEmpty(desktop);
  process_.emplace(std::vector{program.path}, home_.environment(desktop.server.display()));
  const auto isOpen = [&] { return !desktop_.windows.all().empty(); };
  if (!test::waitUntil(isOpen)) throw std::runtime_error(program.name + " shows no window. " + process_->errors());
  window_ = desktop_.windows.all().front();
  usage_.emplace(fileName(program.path));
  std::this_thread::sleep_for(2s);  // some programs become idle and then work again
  area_ = desktop_.windows.area(window_);
}

void RunningProgram::follow() {
  if (program_.followKeys.empty()) return;
  desktop_.windows.activate(window_);
  if (!test::waitUntil([&] { return desktop_.windows.hasKeyboard(window_); }))
    throw std::runtime_error(program_.name + " doesn't get the focus.");
  desktop_.hand.keys(program_.followKeys);
}

double millisecondsToStart(PeerDesktop& desktop, const Program& program, const test::Area& area,
                           const std::vector<std::uint32_t>& atRest) {
  waitUntilEmpty(desktop);
  const test::Home home;
  const auto environment = home.environment(desktop.server.display());
  const auto begun = Clock::now();
  const test::Process process({program.path}, environment);
  while (!isNearlyTheSame(desktop.client.read(area), atRest)) {
    if (Clock::now() - begun > 10s) throw std::runtime_error(program.name + " doesn't look the same as before.");
    std::this_thread::sleep_for(200us);
  }
  return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

}  // namespace tavrelkin::bench
