#include <Qt>

#include "color/zrXYZ.h"
#include "fakes/DragGestures.h"
#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "menubar/MenuBar1.h"
#include "runtime/toolkit/Clipboard.h"
#include "simulator/frmColorBlind.h"

namespace tavrelkin {
namespace {

constexpr Color kGrey{0x808080};  // becomes slightly tinted

class frmColorBlindTest : public RuntimeTest {
 protected:
  frmColorBlindTest() {
    Application::current().MenuBar = MenuBar1::Instance();
    window->Show();
    EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->cmdColor[0]); }));
  }

  void paste(const String& text) const {
    Clipboard().SetText(text);
    gesture::shortcut(*window, "Cmd+V");
  }

  // Checks every control that shows the results of an update.
  void expectResults(Color c, Double gamma) const {
    zrXYZ model(c);
    model.gamma = gamma;
    model.XYZFromRGB(c);
    const Color first = model.getDichromatTranformation(0, c);
    EXPECT_EQ(window->cmdColor[0].Value, c);
    for (Int32 i = 0; i < 3; ++i)
      EXPECT_EQ(window->cmdColor.at(static_cast<std::size_t>(i) + 1).Value, model.getDichromatTranformation(i, c)) << i;
    EXPECT_EQ(window->colors[0].FillColor, first);
    EXPECT_EQ(window->colors[1].FillColor, c);
    EXPECT_EQ(window->SelectedColor, first);
  }

  const Ref<frmColorBlind> window = New<frmColorBlind>();
};

TEST_F(frmColorBlindTest, PasteSimulatesWhatReadsAsAColorAndIgnoresTheRest) {
  paste("255.128.0");
  expectResults(Color{0xFF0000}, 1.8);
  window->txtGamma.SetFocus();
  Clipboard().SetText(" #808080\n");
  gesture::shortcut(window->txtGamma, "Cmd+V");
  EXPECT_EQ(window->txtGamma.Text.get(), "1.8") << "not even the gamma field takes it";
  paste("nonsense");
  expectResults(kGrey, 1.8);
  EXPECT_EQ(window->lblColor.Text.get(), "Color: 134.127.127, 0.5.52, #867F7F");
  EXPECT_EQ(window->lblRColor.Text.get(), "Color: 128.128.128, 0.0.50, #808080");
}

TEST_F(frmColorBlindTest, OnlyTheNormalBoxTakesADrop) {
  const Ref<DragItem> item = New<DragItem>();
  item->SetText("#FF8000");
  for (const std::size_t box : {3U, 0U}) {
    gesture::drop(window->cmdColor.at(box), *item);
    EXPECT_EQ(window->cmdColor[0].Value == Color{0xFF8000}, box == 0) << box;
  }
  expectResults(Color{0xFF8000}, 1.8);
}

TEST_F(frmColorBlindTest, AGammaTakesEffectAtTheNextUpdateUnlessItIsNone) {
  window->SetValue(Color{0x336699});
  for (const char* gamma : {"1.70", "1.80", "2.20"}) {
    gesture::key(window->cmbGamma, Qt::Key_Down);
    EXPECT_EQ(window->txtGamma.Text.get(), gamma);
  }
  expectResults(Color{0x336699}, 1.8);
  const std::tuple<const char*, Double, Int32> rows[] = {
      {" 1.7 or so", 1.7, 3}, {"-1", -1, 3}, {"abc", 2.2, 0}, {"0.0", 2.2, 0}};
  for (const auto& [text, gamma, listed] : rows) {
    window->cmbGamma.ListIndex = 3;
    gesture::shortcut(window->txtGamma, "Cmd+A");
    gesture::type(window->txtGamma, text);
    gesture::click(window->cmdUpdate, 40, 10);
    EXPECT_EQ(window->cmbGamma.ListIndex, listed) << text;
    EXPECT_EQ(window->txtGamma.Text.get(), listed == 3 ? text : "1.80") << "for the next update";
    expectResults(Color{0x336699}, gamma);
  }
  EXPECT_EQ(fake().messages.size(), 2u);
}

TEST_F(frmColorBlindTest, AClickShowsAResultAtLarge) {
  paste("#FF0000");
  for (const std::size_t clicked : {3u, 0u}) {  // the normal colour has no large view
    gesture::click(window->cmdColor.at(clicked), 10, 10);
    EXPECT_EQ(window->colors[0].FillColor, Color{0xFE0E00}) << clicked;
    EXPECT_EQ(window->lblColor.Text.get(), "Color: 254.14.0, 3.100.99, #FE0E00");
    EXPECT_EQ(window->SelectedColor, window->cmdColor[1].Value);
  }
}

TEST_F(frmColorBlindTest, TheNormalBoxHasTheKeyboardWheneverTheWindowComesToTheFront) {
  gesture::click(window->txtGamma, 5, 5);
  const Ref<frmColorBlind> other = New<frmColorBlind>();
  other->Show();
  EXPECT_TRUE(waitUntil([&] { return gesture::hasKeyboard(other->cmdColor[0]); }));
  window->Show();
  EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->cmdColor[0]); }));
}

TEST_F(frmColorBlindTest, TheTabulatorKeyVisitsWhatTakesKeys) {
  auto& box = window->cmdColor;
  gesture::click(box[1], 10, 10);  // does not move the focus
  for (const RectControl* control : std::initializer_list<const RectControl*>{
           &box[0], &box[1], &box[2], &box[3], &window->cmdUpdate, &window->cmbGamma, &window->txtGamma, &box[0]}) {
    ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(*control); })) << control->Name() << control->Index;
    gesture::key(*control, Qt::Key_Tab);
  }
}

}  // namespace
}  // namespace tavrelkin
