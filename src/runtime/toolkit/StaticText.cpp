#include "runtime/toolkit/StaticText.h"

#include <utility>

#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"
#include "runtime/toolkit/widgets/TextLabel.h"

namespace tavrelkin {

StaticText::StaticText(Window& owner, String name, const RectControl* parent)
    : RectControl(owner, std::move(name), new TextLabel, parent),
      Text({}, [this](const String& text) { label().setLines(toDisplayText(text)); }),
      TextFont("System", [this](const String&) { applyFont(); }),
      TextSize(12, [this](Int32) { applyFont(); }),
      Bold(false, [this](bool) { applyFont(); }),
      TextColor(kBlack, [this](Color c) { label().setTextColor(toQt(c)); }),
      TextAlign(TextAlignment::left, [this](TextAlignment where) { label().align(where); }) {
  label().setTextColor(toQt(kBlack));
  applyFont();
}

TextLabel& StaticText::label() const {
  return static_cast<TextLabel&>(native());
}

void StaticText::applyFont() {
  label().setBaseFont(fontFor(TextFont, TextSize, Bold));
}

void StaticText::resized() {
  label().fit();
}

}  // namespace tavrelkin
