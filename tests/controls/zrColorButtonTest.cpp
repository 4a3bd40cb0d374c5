#include <optional>
#include <string>
#include <vector>

#include "color/zrColorLib.h"
#include "controls/zrColorButton.h"
#include "runtime/drawing/Picture.h"
#include "runtime/gui/ThemeColors.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};
constexpr Color kMark{0x123456};

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 240, .height = 80}) {
    button.place(10, 10, 106, 20);
    button.propColorBoxWidth = 0;  // opening puts it right
    button.BeforeSelectColor = [this] {
      log += "before ";
      return skipsDialog;
    };
    button.Action = [this] { note(button.Graphics().Pixel(1, 1) == kMark ? "action-unpainted" : "action"); };
    button.Change = [this] { note("change"); };
    button.Open = [this] { log += button.propColorFormat == 3 ? "open " : "open-early "; };
  }
  void note(const std::string& what) { log += what + "-" + getHexStr(button.Value) + " "; }

  zrColorButton button{*this, "button"};
  bool skipsDialog = false;
  std::string log;
};

void fill(Graphics& g, Color c, Int32 left, Int32 top, Int32 width, Int32 height) {
  g.ForeColor = c;
  g.FillRect(left, top, width, height);
}

testing::AssertionResult shows(zrColorButton& button, const String& text, Color swatch, Color ink) {
  const Ref<Picture> face = NewPicture(106, 20, 32);
  Graphics& g = face->Graphics();
  fill(g, Color{0x909090}, 0, 0, 106, 20);
  fill(g, kWhite, 1, 1, 104, 18);
  fill(g, Color{0x909090}, 2, 2, 15, 16);
  fill(g, swatch, 3, 3, 13, 14);
  g.ForeColor = ink;
  g.DrawString(text, 23, 2 + g.TextAscent());
  for (Int32 y = 0; y < 20; ++y) {
    for (Int32 x = 0; x < 106; ++x) {
      const Color drawn = button.Graphics().Pixel(x, y);
      if (drawn != g.Pixel(x, y)) return testing::AssertionFailure() << x << ", " << y << " is " << getHexStr(drawn);
    }
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult shows(zrColorButton& button, const String& text) {
  return shows(button, text, button.Value, TextColor());
}

Color halfWayToGround(Color c) {
  const Color ground = FillColor();
  return RGB((c.red() + ground.red()) / 2, (c.green() + ground.green()) / 2, (c.blue() + ground.blue()) / 2);
}

class zrColorButtonTest : public RuntimeTest {
 protected:
  zrColorButtonTest() {
    host->Show();
    EXPECT_EQ(host->log, "open ");
    host->log.clear();
  }
  const Ref<Host> host = New<Host>();
  zrColorButton& button = host->button;
  std::string& log = host->log;
};

TEST_F(zrColorButtonTest, EachFormHasItsText) {
  const struct {
    Int32 format;
    Color c;
    const char* text;
  } rows[] = {
      {0, kOrange, "255.128.0"},   {1, RGB(32, 64, 128), "061.075.050"},
      {2, kOrange, "000.050.100"}, {3, kOrange, "#FF8000"},
      {4, kOrange, "255.128.0"},
  };
  for (const auto& [format, c, text] : rows) {
    button.SetValue(c);
    button.setColorFormat(format);
    EXPECT_TRUE(shows(button, text)) << text << " in form " << format;
  }
  EXPECT_EQ(log, "");
}

TEST_F(zrColorButtonTest, DisabledItPalesAndStillTakesDrops) {
  button.Enabled = false;
  button.Refresh(true);
  EXPECT_TRUE(shows(button, "#000000", halfWayToGround(kBlack), DarkBevelColor()));
  const Ref<DragItem> item = New<DragItem>();
  item->MacData("hcol", "255, 128, 1");
  button.Event_DropObject(item, 0);
  EXPECT_EQ(log, "change-FF8001 ");
  EXPECT_TRUE(shows(button, "#FF8001", halfWayToGround(Color{0xFF8001}), DarkBevelColor()));
}

TEST_F(zrColorButtonTest, ThePointerChangesItsStateAndHasItPainted) {
  const struct {
    const char* name;
    void (zrColorButton::*event)();
    Int32 before;
    bool enabled;
    Int32 after;
    bool paints;
    const char* raised;
  } rows[] = {
      {"enter", &zrColorButton::Event_MouseEnter, 0, true, 1, true, ""},
      {"enter disabled", &zrColorButton::Event_MouseEnter, 0, false, 0, false, ""},
      {"exit", &zrColorButton::Event_MouseExit, 1, true, 0, true, ""},
      {"exit disabled", &zrColorButton::Event_MouseExit, 1, false, 0, true, ""},
      {"exit in 3", &zrColorButton::Event_MouseExit, 3, true, 0, true, "action-000000 "},
      {"exit in 0", &zrColorButton::Event_MouseExit, 0, true, 0, false, ""},
  };
  for (const auto& row : rows) {
    button.Enabled = row.enabled;
    button.State = row.before;
    button.Graphics().Pixel(1, 1, kMark);
    log.clear();
    (button.*row.event)();
    EXPECT_EQ(button.State, row.after) << row.name;
    EXPECT_EQ(button.Graphics().Pixel(1, 1), row.paints ? kWhite : kMark) << row.name;
    EXPECT_EQ(log, row.raised) << row.name;
  }
}

TEST_F(zrColorButtonTest, OnlyAReleaseOnTheSwatchIsAClick) {
  const struct {
    Int32 width, height, x, y;
    bool counts;
  } rows[] = {{106, 20, 2, 2, true},    {106, 20, 17, 16, true},  {106, 20, 1, 10, false}, {106, 20, 10, 1, false},
              {106, 20, 18, 10, false}, {106, 20, 10, 17, false}, {200, 30, 32, 26, true}, {200, 30, 33, 10, false}};
  for (const auto& [width, height, x, y, counts] : rows) {
    button.place(10, 10, width, height);
    log.clear();
    gesture::press(button, 60, 10);
    gesture::release(button, x, y);
    EXPECT_EQ(log, counts ? "before action-000000 " : "") << x << ", " << y << " of " << width;
  }
  EXPECT_EQ(fake().colourPrompts, std::vector<std::string>(3, "Select Color"));
}

TEST_F(zrColorButtonTest, TheEndOfTheDialogIsAnActionWhetherChosenOrCancelled) {
  button.SetValue(Color{0x112233});
  const struct {
    std::optional<std::uint32_t> choice;
    bool skipsDialog;
    const char* log;
    const char* text;
  } rows[] = {{std::nullopt, false, "before dialog-112233 action-112233 ", "#112233"},
              {0xFF8000, false, "before dialog-112233 action-FF8000 ", "#FF8000"},
              {0x445566, true, "before action-FF8000 ", "#FF8000"}};
  for (const auto& row : rows) {
    fake().colourChoice = [&](std::uint32_t initial) {
      log += "dialog-" + getHexStr(Color{initial}) + " ";
      return row.choice;
    };
    host->skipsDialog = row.skipsDialog;
    log.clear();
    gesture::click(button, 5, 5);
    EXPECT_EQ(log, row.log);
    EXPECT_TRUE(shows(button, row.text));
  }
}

}  // namespace
}  // namespace tavrelkin
