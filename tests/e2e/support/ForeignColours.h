#pragma once

#include <cstdint>
#include <string>

#include "e2e/support/Home.h"
#include "e2e/support/Process.h"
#include "e2e/support/XServer.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin::test {

// Another program that gives and takes colours by drag.
class ForeignColours {
 public:
  // Its colour button's colour.
  static constexpr std::uint32_t kColour = 0x12ABF0;

  // Returns when it shows its window.
  explicit ForeignColours(const XServer& server);

  // Places to drag from: its colour button, where colours can be dropped too, and the others.
  static constexpr ScreenPoint kButton{930, 630};
  static constexpr ScreenPoint kShortColour{990, 630};
  static constexpr ScreenPoint kLongColourAndText{1050, 630};  // the text is #00C0FF
  static constexpr ScreenPoint kText{1110, 630};               // #C000FF
  static constexpr ScreenPoint kFile{930, 690};                // its address has two dots
  static constexpr ScreenPoint kHugeText{990, 690};            // 100 MB
  static constexpr ScreenPoint kSilence{1050, 690};            // a colour and a text that never come

  // The colour that the button has taken last: four hexadecimal digits a channel; empty before the first.
  std::string taken() const;
  // How many drags that began here have ended, whatever became of them.
  int drags() const;

 private:
  Home home_;
  Process process_;
};

}  // namespace tavrelkin::test
