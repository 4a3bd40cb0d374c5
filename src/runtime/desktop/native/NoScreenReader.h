#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// For a session in which the program can't read the screen. The pointer is the toolkit's, which some sessions keep up
// to date only over the program's own windows, and its movements are not watched.
class NoScreenReader final : public ScreenReader {
 public:
  // `why` tells the user what is missing and what helps; it must not be empty.
  explicit NoScreenReader(std::string why);

  std::string whyNoScreen() const override { return why_; }

  // A checker of grey squares, which nobody takes for the screen.
  std::uint32_t pixel(ScreenPoint at) override;

  ScreenPoint pointer() override;
  void watchPointer(std::function<void()>) override {}
  bool optionKey() override;

 private:
  std::string why_;
};

}  // namespace tavrelkin
