#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "fakes/FakeDesktop.h"
#include "runtime/toolkit/Application.h"

namespace tavrelkin {

// A test that needs windows: the toolkit runs on its offscreen platform, with a fake desktop. Each test has its own
// application; a test that needs more than the plain one makes it.
class RuntimeTest : public ::testing::Test {
 protected:
  RuntimeTest();
  ~RuntimeTest() override;

  // The fake desktop in use.
  FakeDesktop& fake() const { return *fake_; }

  // Replaces the application as the program's start does: first the handlers, then the first window.
  void start(Ref<Application> application);

  // Runs the event loop, and `first` in it, until the program quits. Returns the exit status.
  static int runUntilQuit(const std::function<void()>& first);

  // Makes the toolkit deliver all events that are waiting.
  static void processEvents();

  // Delivers events until `done` returns true. False if that takes more than five seconds.
  static bool waitUntil(const std::function<bool()>& done);

 private:
  FakeDesktop* fake_;
  Ref<Application> application_;
};

// A base class of tests, so that the log outlives the windows, which write to it until their end.
struct Log {
  std::string log;
};

}  // namespace tavrelkin
