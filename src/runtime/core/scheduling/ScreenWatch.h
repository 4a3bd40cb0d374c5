#pragma once

#include <functional>

namespace tavrelkin {

// While the object lives, `changed` is called from the event loop after each change that the desktop's ScreenReader
// reports. Any number of objects can live at a time.
class ScreenWatch {
 public:
  explicit ScreenWatch(std::function<void()> changed);
  ScreenWatch(const ScreenWatch&) = delete;
  ScreenWatch& operator=(const ScreenWatch&) = delete;
  ~ScreenWatch();

 private:
  static void callAll();

  std::function<void()> changed_;
};

}  // namespace tavrelkin
