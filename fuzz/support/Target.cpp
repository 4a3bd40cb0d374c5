#include "fuzz/support/Target.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include "runtime/toolkit/Runtime.h"

namespace tavrelkin {

namespace {

// The runtime on a fake desktop, which must be destroyed last.
class Machine {
 public:
  Machine() {
    auto desktop = std::make_unique<FakeDesktop>();
    desktop_ = desktop.get();
    installDesktop(std::move(desktop));
  }
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;
  ~Machine() {
    shutDownRuntime();
    installDesktop(nullptr);
  }

  FakeDesktop& desktop() const { return *desktop_; }

 private:
  FakeDesktop* desktop_;
};

}  // namespace

void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "A rule does not hold: %s\n", rule);
  std::abort();
}

FakeDesktop& freshDesktop() {
  static const Machine machine;
  machine.desktop().messages.clear();
  return machine.desktop();
}

}  // namespace tavrelkin
