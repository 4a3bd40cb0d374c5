#pragma once

#include <chrono>
#include <functional>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

namespace tavrelkin::test {

// Whether `condition` comes true within a generous time; the event loop runs meanwhile.
inline bool eventually(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    QCoreApplication::processEvents();
  }
  return true;
}

// Whether the event loop has nothing to do. What it finds to do is done.
inline bool isIdle() {
  return !QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
}

}  // namespace tavrelkin::test
