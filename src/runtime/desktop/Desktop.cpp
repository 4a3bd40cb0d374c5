#include "runtime/desktop/Desktop.h"

#include <cassert>
#include <utility>

namespace tavrelkin {

namespace {

std::unique_ptr<Desktop> installed;

}  // namespace

Desktop& desktop() {
  assert(installed);
  return *installed;
}

std::unique_ptr<Desktop> installDesktop(std::unique_ptr<Desktop> next) {
  std::swap(installed, next);
  return next;
}

}  // namespace tavrelkin
