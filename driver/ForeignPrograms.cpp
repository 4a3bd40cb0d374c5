#include "driver/ForeignPrograms.h"

#include <stdexcept>

namespace tavrelkin::test {

namespace {

std::vector<std::string> assistive(std::vector<std::string> command) {
  command.insert(command.begin(), {"/usr/bin/python3", "-W", "ignore", TAVRELKIN_ASSISTIVE});
  return command;
}

}  // namespace

ForeignColors::ForeignColors(const XServer& server)
    : process({"/usr/bin/python3", TAVRELKIN_FOREIGN_COLOURS}, server.environment()) {
  process.firstLine();
}

Assistive::Assistive(const std::vector<std::string>& environment)
    : environment_(environment), listener_(assistive({"listen"}), environment) {
  listener_.firstLine();
}

std::string Assistive::ask(const std::vector<std::string>& command) const {
  Process asking(assistive(command), environment_);
  if (asking.waitForExit() != 0) throw std::runtime_error(command.back() + ": " + asking.errors());
  return asking.output();
}

testing::AssertionResult Assistive::hears(const std::string& announcement) const {
  if (waitUntil([&] { return listener_.output().find(announcement) != std::string::npos; }))
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << announcement << " is not among\n" << listener_.output();
}

}  // namespace tavrelkin::test
