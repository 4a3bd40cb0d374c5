#include "e2e/support/ForeignColours.h"

#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

const std::string kReady = "ready\n";

}  // namespace

ForeignColours::ForeignColours(const XServer& server)
    : process_({"/usr/bin/python3", TAVRELKIN_FOREIGN_COLOURS}, home_.environment(server.display())) {
  if (!waitUntil([this] { return process_.output().starts_with(kReady); })) throw std::runtime_error(process_.errors());
}

std::string ForeignColours::taken() const {
  return process_.output().substr(kReady.size());
}

}  // namespace tavrelkin::test
