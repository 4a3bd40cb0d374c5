#include "runtime/core/scheduling/Delivery.h"

#include <string>
#include <utility>

#include <QCoreApplication>
#include <QMetaObject>

#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

namespace {

bool ending = false;

void tellAndEnd(const std::string& what) {
  desktop().messageBox("Tavrelkin has to close because of a fault in the program.\n\n" + what);
  QCoreApplication::exit(1);
}

}  // namespace

// The message waits for the event loop: a fault may come from a thread, whose stack can't hold a dialog's loop.
void reportFault(const RuntimeException& fault) {
  if (std::exchange(ending, true)) return;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [what = std::string(fault.what())] { tellAndEnd(what); }, Qt::QueuedConnection);
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
