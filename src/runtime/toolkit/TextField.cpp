#include "runtime/toolkit/TextField.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>

#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

namespace {

bool anyTakes(const QList<QAction*>& items, const QKeySequence& keys) {
  return std::any_of(items.begin(), items.end(), [&keys](const QAction* item) {
    if (item->menu()) return anyTakes(item->menu()->actions(), keys);
    return item->isEnabled() && item->shortcut() == keys;
  });
}

class FieldWidget : public QLineEdit {
 public:
  FieldWidget() {
    setAcceptDrops(false);
    setFont(fontFor("System", 12, false));
  }

 protected:
  // Qt asks the focused field first whether it wants the keys of a shortcut. A line edit wants those of copy, paste and
  // so on, which here belong to the menus.
  bool event(QEvent* event) override {
    const bool handled = QLineEdit::event(event);
    if (event->type() == QEvent::ShortcutOverride && belongsToMenu(*static_cast<QKeyEvent*>(event))) event->ignore();
    return handled;
  }

 private:
  bool belongsToMenu(const QKeyEvent& event) const {
    const QWidget* bar = window()->layout()->menuBar();
    return bar && anyTakes(bar->actions(), QKeySequence(event.keyCombination()));
  }
};

}  // namespace

TextField::TextField(Window& owner, String name)
    : RectControl(owner, std::move(name), new FieldWidget),
      Text({}, [this](const String& text) { static_cast<QLineEdit&>(native()).setText(toQt(text)); }) {
  AcceptFocus = true;
  TabStop = true;
  auto* field = static_cast<QLineEdit*>(&native());
  QObject::connect(field, &QLineEdit::textChanged, [this](const QString& text) { Text.store(fromQt(text)); });
}

}  // namespace tavrelkin
