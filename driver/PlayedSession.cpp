#include "driver/PlayedSession.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tavrelkin::test {

namespace {

// The line with that index; empty until the line is complete.
std::string wholeLine(const std::string& text, std::size_t index) {
  std::istringstream lines(text);
  std::string line;
  for (std::size_t i = 0; i <= index; ++i)
    if (!std::getline(lines, line) || lines.eof()) return {};
  return line;
}

}  // namespace

PlayedSession::PlayedSession()
    : Session({.messageBus = true,
               .busConfiguration = TAVRELKIN_BUS_CONFIGURATION,
               .environment = {"WAYLAND_DISPLAY=wayland-0", "QT_QPA_PLATFORM=xcb"}}),
      desktop_({TAVRELKIN_PORTAL_DESKTOP, fifo_}, environment) {
  if (desktop_.firstLine() != "ready")
    throw std::runtime_error("The played desktop did not start: " + desktop_.errors());
}

void PlayedSession::cast(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    tell(line);
    waitForAnswer();
  }
}

void PlayedSession::tell(const std::string& line) {
  std::ofstream(fifo_) << line << std::endl;
}

PlayedSession::TimePoint PlayedSession::waitForAnswer() {
  std::string answer;
  const auto hasAnswered = [&] { return !(answer = wholeLine(desktop_.output(), answers_)).empty(); };
  if (!waitUntil(hasAnswered)) throw std::runtime_error("The played desktop does not answer.");
  ++answers_;
  std::istringstream words(answer);
  std::string done;
  std::chrono::nanoseconds::rep since = 0;
  if (!(words >> done >> since) || done != "done") throw std::runtime_error("The played desktop answers: " + answer);
  return TimePoint(std::chrono::nanoseconds(since));
}

}  // namespace tavrelkin::test
