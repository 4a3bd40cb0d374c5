// Colours to and from other programs by the clipboard.

#include <gtest/gtest.h>

#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

class ClipboardTest : public testing::Test {
 protected:
  std::string copiedBy(const std::string& keys) {
    session_.clipboard.copy("something else");
    tool_.keys(keys);
    waitUntil([&] { return session_.clipboard.paste() != "something else"; });
    return session_.clipboard.paste();
  }

  Session session_;
  ToolWindow tool_{session_};
};

TEST_F(ClipboardTest, CopiesTheColourInBothForms) {
  EXPECT_EQ(copiedBy("Ctrl+C"), "#70ABFF");
  EXPECT_EQ(copiedBy("Ctrl+Alt+C"), "Color: 112.171.255, 215.56.100, #70ABFF");
}

TEST_F(ClipboardTest, PastesTextOfAnotherProgram) {
  session_.clipboard.copy("  #FF8000\n");
  tool_.keys("Ctrl+V");
  EXPECT_TRUE(tool_.getsTitleOf(0xFF8000));
  session_.clipboard.copy("no colour");
  tool_.keys("Ctrl+V");
  EXPECT_EQ(copiedBy("Ctrl+C"), "#FF8000") << "still";
}

}  // namespace
}  // namespace tavrelkin::test
