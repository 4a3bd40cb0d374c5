#include "runtime/core/scheduling/Delivery.h"

#include <utility>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

namespace {

std::function<void(const std::string&)> endOnFault;
bool ending = false;

}  // namespace

void onFault(std::function<void(const std::string&)> end) {
  endOnFault = std::move(end);
}

void reportFault(const RuntimeException& fault) {
  if (!std::exchange(ending, true) && endOnFault) endOnFault(fault.what());
}

void forgetFault() {
  ending = false;
}

bool enterProgram() {
  if (ending) return false;
  desktop().screenReader().beginTurn();
  Scheduler::instance().beginMainTurn();
  return true;
}

}  // namespace tavrelkin
