#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "fakes/FakeDesktop.h"
#include "runtime/toolkit/Application.h"

namespace tavrelkin {

// A test that needs windows: the toolkit runs on its offscreen platform, and the desktop is a fake one. Each test has
// an application of its own, made by its body where it needs more than the plain one.
class RuntimeTest : public ::testing::Test {
 protected:
  RuntimeTest();
  ~RuntimeTest() override;

  // The fake desktop in use.
  FakeDesktop& fake() const { return *fake_; }

  // Replaces the application by another one, as the program's start does: handlers, then the first window.
  void start(Ref<Application> application);

  // Runs the event loop until the program quits, and gives its exit status; `first` is called in it.
  static int runUntilQuit(const std::function<void()>& first);

  // Lets the toolkit deliver all that is waiting.
  static void processEvents();

  // Delivers events until `done` says so. False after five seconds in vain.
  static bool waitUntil(const std::function<bool()>& done);

 private:
  FakeDesktop* fake_;
  Ref<Application> application_;
};

}  // namespace tavrelkin
