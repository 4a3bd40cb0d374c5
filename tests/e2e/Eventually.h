#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include "driver/Process.h"

namespace tavrelkin::test {

// Whether `condition` comes true within a generous time; the event loop runs meanwhile.
template <class Condition>
bool eventually(const Condition& condition) {
  return waitUntil([&] {
    QCoreApplication::processEvents();
    return condition();
  });
}

// Whether the event loop has nothing to do. What it finds to do is done.
inline bool isIdle() {
  return !QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
}

}  // namespace tavrelkin::test
