#include <initializer_list>

#include "color/zrXYZ.h"
#include "menubar/MenuBar1.h"
#include "runtime/gui/Clipboard.h"
#include "simulator/frmColorBlind.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr int kKeyTab = 0x01000001;
constexpr int kKeyDelete = 0x01000007;
constexpr int kKeyDown = 0x01000015;

class frmColorBlindTest : public RuntimeTest {
 protected:
  frmColorBlindTest() {
    Application::current().MenuBar = MenuBar1::Instance();
    window->Show();
    EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->cmdColor[0]); }));
  }

  void update() const { gesture::click(window->cmdUpdate, 40, 10); }
  void show(std::size_t result) const { gesture::click(window->cmdColor.at(result), 10, 10); }
  void paste(const String& text) const {
    Clipboard().SetText(text);
    gesture::shortcut(*window, "Cmd+V");
  }
  // The user replaces what stands in the gamma field.
  void typeGamma(const String& text) const {
    gesture::shortcut(window->txtGamma, "Cmd+A");
    gesture::key(window->txtGamma, kKeyDelete);
    gesture::type(window->txtGamma, text);
    EXPECT_EQ(window->txtGamma.Text.get(), text);
  }

  // Every place where a finished update shows.
  void expectResults(Color c, std::initializer_list<Color> results) const {
    const Color first = *results.begin();
    EXPECT_EQ(window->cmdColor[0].Value, c);
    std::size_t i = 0;
    for (const Color result : results)
      EXPECT_EQ(window->cmdColor.at(++i).Value, result) << i;
    EXPECT_EQ(window->colors[0].FillColor, first);
    EXPECT_EQ(window->colors[1].FillColor, c);
    EXPECT_EQ(window->SelectedColor, first);
  }

  const Ref<frmColorBlind> window = New<frmColorBlind>();
};

// By worked examples: pure red, and a grey that takes a tint.
constexpr Color kGrey{0x808080};
const std::initializer_list<Color> kGreyAt18{RGB(134, 127, 127), RGB(145, 123, 128), RGB(133, 126, 138)};
const std::initializer_list<Color> kGreyAt22{RGB(133, 127, 127), RGB(142, 124, 128), RGB(132, 126, 136)};
const std::initializer_list<Color> kRedAt18{RGB(130, 110, 21), RGB(149, 103, 0), RGB(254, 14, 0)};

TEST_F(frmColorBlindTest, PasteSimulatesWhatReadsAsAColourAndIgnoresTheRest) {
  paste(" #808080\n");
  expectResults(kGrey, kGreyAt18);
  EXPECT_EQ(window->lblColor.Text.get(), "Color: 134.127.127, 0.5.52, #867F7F");
  EXPECT_EQ(window->lblRColor.Text.get(), "Color: 128.128.128, 0.0.50, #808080");
  paste("255.128.0");
  expectResults(Color{0xFF0000}, kRedAt18);
  paste("nonsense");
  expectResults(Color{0xFF0000}, kRedAt18);
}

TEST_F(frmColorBlindTest, PasteGoesToTheSimulationAlsoFromTheGammaField) {
  window->txtGamma.SetFocus();
  Clipboard().SetText("#808080");
  gesture::shortcut(window->txtGamma, "Cmd+V");
  EXPECT_EQ(window->txtGamma.Text.get(), "1.8");
  expectResults(kGrey, kGreyAt18);
}

TEST_F(frmColorBlindTest, AChosenGammaTakesEffectAtTheNextUpdate) {
  paste("#808080");
  for (const char* gamma : {"1.70", "1.80", "2.20"}) {
    gesture::key(window->cmbGamma, kKeyDown);
    EXPECT_EQ(window->txtGamma.Text.get(), gamma);
  }
  expectResults(kGrey, kGreyAt18);
  update();
  expectResults(kGrey, kGreyAt22);
}

TEST_F(frmColorBlindTest, TheGammaIsWhatTheFieldBeginsWithUnlessThatIsNothing) {
  const struct {
    const char* text;
    Double gamma;  // 0 where it is refused
  } rows[] = {{" 1.7 or so", 1.7}, {"1,8", 1}, {"-1", -1}, {"abc", 0}, {"0.000", 0}};
  const Color c{0x336699};
  window->cmdColor[0].SetValue(c);
  for (const auto& row : rows) {
    fake().messages.clear();
    window->cmbGamma.ListIndex = 3;
    typeGamma(row.text);
    update();
    const bool refused = row.gamma == 0;
    EXPECT_EQ(fake().messages.size(), refused ? 1u : 0u) << row.text;
    EXPECT_EQ(window->cmbGamma.ListIndex, refused ? 0 : 3) << row.text;
    EXPECT_EQ(window->txtGamma.Text.get(), refused ? "1.80" : row.text) << "for the next update";
    zrXYZ model(c);
    model.gamma = refused ? 2.2 : row.gamma;
    model.XYZFromRGB(c);
    expectResults(c, {model.getDichromatTranformation(0, c), model.getDichromatTranformation(1, c),
                      model.getDichromatTranformation(2, c)});
  }
}

TEST_F(frmColorBlindTest, AClickShowsAResultAtLargeUntilTheNextUpdate) {
  paste("#FF0000");
  const Color first = window->SelectedColor;
  for (const std::size_t result : {2u, 3u}) {
    show(result);
    EXPECT_EQ(window->colors[0].FillColor, window->cmdColor.at(result).Value);
    EXPECT_EQ(window->SelectedColor, first);
    show(0);
    EXPECT_EQ(window->colors[0].FillColor, window->cmdColor.at(result).Value) << "the normal colour has no large view";
  }
  EXPECT_EQ(window->lblColor.Text.get(), "Color: 254.14.0, 3.100.99, #FE0E00");
  EXPECT_EQ(window->lblRColor.Text.get(), "Color: 255.0.0, 0.100.100, #FF0000");
  paste("#808080");
  expectResults(kGrey, kGreyAt18);
}

TEST_F(frmColorBlindTest, TheNormalBoxHasTheKeyboardWheneverTheWindowComesToTheFront) {
  gesture::click(window->txtGamma, 5, 5);
  EXPECT_FALSE(gesture::hasKeyboard(window->cmdColor[0]));
  const Ref<frmColorBlind> other = New<frmColorBlind>();
  other->Show();
  EXPECT_TRUE(waitUntil([&] { return gesture::hasKeyboard(other->cmdColor[0]); }));
  window->Show();
  EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->cmdColor[0]); }));
}

TEST_F(frmColorBlindTest, TheTabulatorKeyVisitsWhatTakesKeys) {
  auto& box = window->cmdColor;
  const std::array<const RectControl*, 7> order{&window->cmbGamma, &window->txtGamma, &box[0],           &box[1],
                                                &box[2],           &box[3],           &window->cmdUpdate};
  window->cmbGamma.SetFocus();
  for (std::size_t i = 0; i < 2 * order.size(); ++i) {
    const RectControl& control = *order.at(i % order.size());
    ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(control); })) << i;
    gesture::key(control, kKeyTab);
  }
  for (std::size_t result = 1; result < 4; ++result) {
    show(result);
    EXPECT_FALSE(gesture::hasKeyboard(window->cmdColor.at(result)));
  }
}

}  // namespace
}  // namespace tavrelkin
