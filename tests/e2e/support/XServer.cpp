#include "e2e/support/XServer.h"

#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

std::vector<std::string> command(const XServer::Options& options) {
  std::vector<std::string> result{"Xvfb",         "-displayfd", "1",        "-screen",   "0",
                                  options.screen, "-ac",        "-noreset", "-nolisten", "tcp"};
  result.insert(result.end(), options.arguments.begin(), options.arguments.end());
  return result;
}

}  // namespace

XServer::XServer(const Options& options) : process_(command(options), home_.environment({})) {
  const auto hasNumber = [this] { return process_.output().ends_with('\n'); };
  waitUntil([&] { return hasNumber() || !process_.isRunning(); });
  if (!hasNumber()) throw std::runtime_error("The X server did not start: " + process_.errors());
  const std::string number = process_.output();
  display_ = ":" + number.substr(0, number.find('\n'));
}

// In order, so that it removes its socket and its lock.
XServer::~XServer() {
  process_.terminate();
  process_.waitForExit();
}

void XServer::kill() {
  process_.kill();
  process_.waitForExit();
}

}  // namespace tavrelkin::test
