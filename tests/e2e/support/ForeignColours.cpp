#include "e2e/support/ForeignColours.h"

#include <sstream>
#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

const std::string kReady = "ready\n";
const std::string kOver = "over";

}  // namespace

ForeignColours::ForeignColours(const XServer& server)
    : process_({"/usr/bin/python3", TAVRELKIN_FOREIGN_COLOURS}, home_.environment(server.display())) {
  if (!waitUntil([this] { return process_.output().starts_with(kReady); })) throw std::runtime_error(process_.errors());
}

std::string ForeignColours::taken() const {
  std::istringstream lines(process_.output().substr(kReady.size()));
  std::string last;
  for (std::string line; std::getline(lines, line);)
    if (line != kOver) last = line;
  return last;
}

int ForeignColours::drags() const {
  std::istringstream lines(process_.output());
  int count = 0;
  for (std::string line; std::getline(lines, line);)
    count += line == kOver;
  return count;
}

}  // namespace tavrelkin::test
