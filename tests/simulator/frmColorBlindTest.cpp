#include "app/menubar/MenuBar1.h"
#include "color/zrXYZ.h"
#include "runtime/gui/Clipboard.h"
#include "simulator/frmColorBlind.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr int kKeyTab = 0x01000001;
constexpr int kKeyDelete = 0x01000007;
constexpr int kKeyDown = 0x01000015;
constexpr Color kGrey{0x808080};  // which takes a tint

class frmColorBlindTest : public RuntimeTest {
 protected:
  frmColorBlindTest() {
    Application::current().MenuBar = MenuBar1::Instance();
    window->Show();
    EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->cmdColor[0]); }));
  }

  void update() const { gesture::click(window->cmdUpdate, 40, 10); }
  void paste(const String& text) const {
    Clipboard().SetText(text);
    gesture::shortcut(*window, "Cmd+V");
  }

  // Every place where a finished update shows.
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

TEST_F(frmColorBlindTest, PasteSimulatesWhatReadsAsAColourAndIgnoresTheRest) {
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

TEST_F(frmColorBlindTest, AGammaTakesEffectAtTheNextUpdateUnlessItIsNone) {
  const std::tuple<const char*, Double, bool> rows[] = {
      {" 1.7 or so", 1.7, false}, {"-1", -1, false}, {"abc", 2.2, true}, {"0.000", 2.2, true}};
  window->SetValue(Color{0x336699});
  for (const char* gamma : {"1.70", "1.80", "2.20"}) {
    gesture::key(window->cmbGamma, kKeyDown);
    EXPECT_EQ(window->txtGamma.Text.get(), gamma);
  }
  expectResults(Color{0x336699}, 1.8);
  update();
  expectResults(Color{0x336699}, 2.2);
  for (const auto& [text, gamma, refused] : rows) {
    fake().messages.clear();
    window->cmbGamma.ListIndex = 3;
    gesture::shortcut(window->txtGamma, "Cmd+A");
    gesture::key(window->txtGamma, kKeyDelete);
    gesture::type(window->txtGamma, text);
    update();
    EXPECT_EQ(fake().messages.size(), refused ? 1u : 0u) << text;
    EXPECT_EQ(window->cmbGamma.ListIndex, refused ? 0 : 3) << text;
    EXPECT_EQ(window->txtGamma.Text.get(), refused ? "1.80" : text) << "for the next update";
    expectResults(Color{0x336699}, gamma);
  }
}

TEST_F(frmColorBlindTest, AClickShowsAResultAtLargeUntilTheNextUpdate) {
  paste("#FF0000");
  for (const std::size_t clicked : {2u, 3u, 0u}) {
    gesture::click(window->cmdColor.at(clicked), 10, 10);
    const std::size_t shown = clicked == 0 ? 3 : clicked;  // the normal colour has no large view
    EXPECT_EQ(window->colors[0].FillColor, window->cmdColor.at(shown).Value) << clicked;
    EXPECT_EQ(window->SelectedColor, window->cmdColor[1].Value);
  }
  EXPECT_EQ(window->lblColor.Text.get(), "Color: 254.14.0, 3.100.99, #FE0E00");
  update();
  expectResults(Color{0xFF0000}, 1.8);
}

TEST_F(frmColorBlindTest, TheTabulatorKeyVisitsWhatTakesKeys) {
  auto& box = window->cmdColor;
  const RectControl* order[] = {&window->cmbGamma, &window->txtGamma, &box[0],           &box[1],
                                &box[2],           &box[3],           &window->cmdUpdate};
  window->cmbGamma.SetFocus();
  for (int round = 0; round < 2; ++round) {
    for (const RectControl* control : order) {
      ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(*control); })) << control->Name() << control->Index;
      gesture::key(*control, kKeyTab);
    }
  }
  gesture::click(box[1], 10, 10);
  EXPECT_FALSE(gesture::hasKeyboard(box[1]));
}

}  // namespace
}  // namespace tavrelkin
