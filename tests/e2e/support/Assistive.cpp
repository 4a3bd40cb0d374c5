#include "e2e/support/Assistive.h"

#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

std::vector<std::string> script(const std::vector<std::string>& command) {
  std::vector<std::string> result{"/usr/bin/python3", "-W", "ignore", TAVRELKIN_ASSISTIVE};
  result.insert(result.end(), command.begin(), command.end());
  return result;
}

}  // namespace

Assistive::Assistive(const Session& session)
    : environment_(session.home.environment(session.server.display(), session.bus.value().address())),
      listener_(script({"listen"}), environment_) {
  if (!waitUntil([this] { return heard().starts_with("listening"); })) throw std::runtime_error(listener_.errors());
}

std::string Assistive::ask(const std::vector<std::string>& command) const {
  Process asking(script(command), environment_);
  if (asking.waitForExit() != 0) throw std::runtime_error(command.back() + ": " + asking.errors());
  return asking.output();
}

}  // namespace tavrelkin::test
