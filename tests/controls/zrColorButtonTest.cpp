#include <optional>

#include "controls/ControlsTest.h"
#include "runtime/core/drawing/Picture.h"
#include "runtime/toolkit/ThemeColors.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};

class zrColorButtonTest : public ControlsTest {
 protected:
  // Whether the button shows the text, in this ink, beside a framed swatch.
  testing::AssertionResult shows(const String& text, Color swatch, Color ink) {
    constexpr Color frame{0x909090};
    const Ref<Picture> paper = NewPicture(106, 20, 32);
    paper->Graphics().ForeColor = ink;
    paper->Graphics().DrawString(text, 23, 2 + paper->Graphics().TextAscent());
    for (const auto& [x, y, c] : {std::tuple{0, 0, frame},
                                  {105, 19, frame},
                                  {2, 2, frame},
                                  {16, 17, frame},
                                  {3, 3, swatch},
                                  {15, 16, swatch},
                                  {17, 10, kWhite}})
      if (button.Graphics().Pixel(x, y) != c) return testing::AssertionFailure() << x << ", " << y;
    for (Int32 x = 23; x < 105; ++x)
      if (button.Graphics().Pixel(x, 9) != paper->Graphics().Pixel(x, 9)) return testing::AssertionFailure() << "text";
    return testing::AssertionSuccess();
  }

  zrColorButton& button = host->button;
};

TEST_F(zrColorButtonTest, EachFormHasItsText) {
  EXPECT_EQ(host->log, "palette-opens-12 button-opens-3 ");
  const std::tuple<Int32, Color, const char*> rows[] = {{0, kOrange, "255.128.0"},
                                                        {1, Color{0x204080}, "061.075.050"},
                                                        {2, kOrange, "000.050.100"},
                                                        {3, Color{0x0A8000}, "#0A8000"},
                                                        {4, kOrange, "255.128.0"}};
  for (const auto& [format, c, text] : rows) {
    EXPECT_EQ(after([&, c = c] { button.SetValue(c); }), "");
    button.setColorFormat(format);
    EXPECT_TRUE(shows(text, c, TextColor())) << text << " in form " << format;
  }
}

TEST_F(zrColorButtonTest, DisabledItPalesAndStillTakesDrops) {
  button.Enabled = false;
  button.Refresh(true);
  const Color ground = FillColor();
  EXPECT_TRUE(shows("#000000", RGB(ground.red() / 2, ground.green() / 2, ground.blue() / 2), DarkBevelColor()));
  const Ref<DragItem> item = New<DragItem>();
  item->MacData("hcol", "255, 128, 1");
  EXPECT_EQ(after([&] { button.Event_DropObject(item, 0); }), "changes-FF8001 ");
}

TEST_F(zrColorButtonTest, ThePointerChangesItsStateAndHasItPainted) {
  // Whether the button is enabled, whether the pointer enters (or leaves), the state before and after, and whether the
  // button is painted.
  const std::tuple<bool, bool, Int32, Int32, bool> rows[] = {{true, true, 0, 1, true},
                                                             {false, true, 0, 0, false},
                                                             {true, false, 1, 0, true},
                                                             {true, false, 0, 0, false},
                                                             {true, false, 3, 0, true}};
  for (const auto& [enabled, enters, before, state, paints] : rows) {
    button.Enabled = enabled;
    button.State = before;
    button.Graphics().Pixel(1, 1, kOrange);
    const auto move = [&, enters = enters] { enters ? button.Event_MouseEnter() : button.Event_MouseExit(); };
    EXPECT_EQ(after(move), before == 3 ? "button-000000 " : "");
    EXPECT_EQ(button.State, state) << before;
    EXPECT_EQ(button.Graphics().Pixel(1, 1) == kWhite, paints) << before;
  }
}

TEST_F(zrColorButtonTest, OnlyAReleaseOnTheSwatchIsAClick) {
  const std::tuple<Int32, Int32, Int32, Int32, bool> rows[] = {
      {106, 20, 2, 2, true},    {106, 20, 17, 16, true},  {106, 20, 1, 10, false}, {106, 20, 10, 1, false},
      {106, 20, 18, 10, false}, {106, 20, 10, 17, false}, {200, 30, 32, 26, true}, {200, 30, 33, 10, false}};
  for (const auto& [width, height, x, y, counts] : rows) {
    button.place(10, 10, width, height);
    host->log = "";
    gesture::press(button, 60, 10);
    gesture::release(button, x, y);
    EXPECT_EQ(host->log, counts ? "before-000000 button-000000 " : "") << x << ", " << y << " of " << width;
  }
  EXPECT_EQ(fake().colorPrompts, std::vector<std::string>(3, "Select Color"));
}

TEST_F(zrColorButtonTest, TheEndOfTheDialogIsAnActionWhetherChosenOrCancelled) {
  std::optional<std::uint32_t> choice;
  fake().colorChoice = [&](std::uint32_t initial) {
    host->note("dialog", Color{initial});
    return choice;
  };
  const auto click = [&] { gesture::click(button, 5, 5); };
  EXPECT_EQ(after(click), "before-000000 dialog-000000 button-000000 ");
  choice = 0xFF8000;
  EXPECT_EQ(after(click), "before-000000 dialog-000000 button-FF8000 ");
  EXPECT_TRUE(shows("#FF8000", Color{0xFF8000}, TextColor()));
  host->skipsDialog = true;
  EXPECT_EQ(after(click), "before-FF8000 button-FF8000 ");
}

}  // namespace
}  // namespace tavrelkin
