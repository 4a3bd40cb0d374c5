#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include "driver/Process.h"

namespace tavrelkin::test {

// Whether `condition` becomes true within a generous time; the event loop runs meanwhile.
template <class Condition>
bool eventually(const Condition& condition) {
  return waitUntil([&] {
    QCoreApplication::processEvents();
    return condition();
  });
}

// Processes the events that are waiting; returns whether there were none.
inline bool isIdle() {
  return !QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
}

}  // namespace tavrelkin::test
