#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "driver/Process.h"
#include "driver/Session.h"

// Other programs in the session of a test.
namespace tavrelkin::test {

// A graphics program with boxes to drag colours from. The first box is the toolkit's own colour button, which also
// accepts colours; the others only offer them.
//
// The program prints "ready" when it can be used, "over" for each of its own drags that has ended in any way, and each
// colour that the button accepts, with four hexadecimal digits a channel.
struct ForeignColors {
  static constexpr ScreenPoint kButton{930, 630};  // #12ABF0
  static constexpr ScreenPoint kShortColor{990, 630};
  static constexpr ScreenPoint kLongColorAndText{1050, 630};  // the text is #00C0FF
  static constexpr ScreenPoint kText{1110, 630};              // #C000FF
  static constexpr ScreenPoint kFile{930, 690};               // the file's address has two dots
  static constexpr ScreenPoint kHugeText{990, 690};           // 100 MB, with two dots
  static constexpr ScreenPoint kSilence{1050, 690};           // a colour and a text that take a minute to come

  explicit ForeignColors(const XServer& server);

  std::string said() const { return process.output(); }

  Process process;
};

// An assistive technology. It obeys these commands; each takes a name or the beginning of a title:
//
//   tree TITLE          prints a line for each control in the windows whose title begins so: role, name, description,
//                       value, and states of interest, separated by "|"
//   press NAME          presses the control with this name; if there are several, the last one
//   set NAME VALUE      sets a slider
//   focus NAME          moves the focus to the control
//   listen              prints "listening", and then a line for each change that is announced: its kind, and the
//                       control in the form of "tree"
class Assistive {
 public:
  explicit Assistive(const std::vector<std::string>& environment);

  // Returns the answer to a command. Throws if what the command names does not exist.
  std::string ask(const std::vector<std::string>& command) const;
  // All announcements so far.
  std::string heard() const { return listener_.output(); }
  // Whether the program soon announces this.
  testing::AssertionResult hears(const std::string& announcement) const;

 private:
  std::vector<std::string> environment_;
  Process listener_;
};

}  // namespace tavrelkin::test
