#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// How one kind of display server is read: one class for each, among which NativeDesktop.cpp chooses. The operations are
// those of Desktop under the same names, with the same promises.
class ScreenReader {
 public:
  ScreenReader() = default;
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;
  virtual ~ScreenReader() = default;

  virtual std::string whyNoScreen() const { return {}; }
  virtual void beginTurn() {}
  virtual std::uint32_t pixel(ScreenPoint at) = 0;
  virtual ScreenPoint pointer() = 0;
  virtual void watchPointer(std::function<void()> moved) = 0;
  virtual bool optionKey() = 0;
};

}  // namespace tavrelkin
