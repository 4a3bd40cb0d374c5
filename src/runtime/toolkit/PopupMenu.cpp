#include "runtime/toolkit/PopupMenu.h"

#include <utility>

#include <QComboBox>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

namespace {

QComboBox& listOf(const PopupMenu& control) {
  return static_cast<QComboBox&>(control.native());
}

void select(PopupMenu& control, Int32 row) {
  listOf(control).setCurrentIndex(row);
  control.ListIndex.store(listOf(control).currentIndex());
}

}  // namespace

PopupMenu::PopupMenu(Window& owner, String name)
    : RectControl(owner, std::move(name), new QComboBox), ListIndex(-1, [this](Int32 row) { select(*this, row); }) {
  listOf(*this).setFont(fontFor("System", 12, false));
  QObject::connect(&listOf(*this), &QComboBox::activated, [this](int row) {
    ListIndex.store(row);
    deliver(ownerWindow(), [this] { Change(); });
  });
}

// Qt selects the first row that is added to a list; this restores the selection.
void PopupMenu::AddRow(const String& text) {
  listOf(*this).addItem(toQt(text));
  listOf(*this).setCurrentIndex(ListIndex);
}

String PopupMenu::Text() const {
  return fromQt(listOf(*this).currentText());
}

}  // namespace tavrelkin
