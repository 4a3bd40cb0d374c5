#pragma once

#include <cstdint>
#include <functional>

#include "runtime/desktop/ScreenReader.h"
#include "runtime/desktop/native/ToolkitOptionKey.h"

namespace tavrelkin {

// A checker of grey squares, which nobody takes for the screen.
std::uint32_t patternOfGreys(ScreenPoint at);

// For a session in which the program can't read the screen. The pointer is the toolkit's, which some sessions keep up
// to date only over the program's own windows, and its movements are not watched.
class NoScreenReader final : public ScreenReader {
 public:
  // `tellWhy` tells the user what is missing and what helps. It is called once, at the first read or request, maybe
  // from a thread of the program, and must return at once.
  explicit NoScreenReader(std::function<void()> tellWhy);

  ScreenState state() const override { return ScreenState::unavailable; }
  void request(const Picked& picked) override;
  std::uint32_t pixel(ScreenPoint at) override;
  ScreenPoint pointer() override;
  void watch(std::function<void()>) override {}
  bool optionKey() override { return optionKey_.isDown(); }

 private:
  std::function<void()> tellWhy_;  // empty once it was called
  ToolkitOptionKey optionKey_;
};

}  // namespace tavrelkin
