#include "runtime/toolkit/Menu.h"

#include <utility>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Application.h"
#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

MenuItem::MenuItem(String name, String text, String shortcut)
    : Enabled(false, [this](bool on) { action_->setEnabled(on); }),
      Checked(false, [this](bool) { applyChecked(); }),
      name_(std::move(name)),
      text_(std::move(text)),
      shortcut_(std::move(shortcut)),
      action_(std::make_unique<QAction>(isSeparator() ? QString() : toQt(text_))) {
  action_->setObjectName(toQt(name_));
  action_->setSeparator(isSeparator());
  action_->setMenuRole(QAction::NoRole);
  action_->setShortcut(toKeySequence(shortcut_));
  action_->setAutoRepeat(false);
  action_->setEnabled(false);
  QObject::connect(action_.get(), &QAction::triggered, [this] {
    const Ref<MenuItem> keep(this);
    chosen();
    applyChecked();
  });
}

MenuItem::~MenuItem() = default;

void MenuItem::Append(const Ref<MenuItem>& item) {
  if (!menu_) {
    menu_ = std::make_unique<QMenu>(toQt(text_));
    QObject::connect(menu_.get(), &QMenu::aboutToShow, [] { Application::current().enableMenuItems(); });
  }
  menu_->addAction(item->action_.get());
  items_.push_back(item);
}

void MenuItem::attachTo(QMenuBar& bar) const {
  if (menu_) bar.addMenu(menu_.get());
}

void MenuItem::attachKeysTo(QWidget& window) const {
  window.addAction(action_.get());
  for (const Ref<MenuItem>& item : items_)
    item->attachKeysTo(window);
}

void MenuItem::chosen() {
  Application::current().dispatch(name_);
}

// Qt toggles the check mark of a checkable item when the user chooses it, but only the program may change the mark. Qt
// also draws an empty box for an item that is checkable but not checked, so an item is checkable only while checked.
void MenuItem::applyChecked() {
  action_->setCheckable(Checked);
  action_->setChecked(Checked);
}

QuitMenuItem::QuitMenuItem(String name, String text, String shortcut)
    : MenuItem(std::move(name), std::move(text), std::move(shortcut)) {
  action().setMenuRole(QAction::QuitRole);
}

void QuitMenuItem::chosen() {
  Application::current().Quit();
}

AppleMenuItem::AppleMenuItem(String name, String text) : MenuItem(std::move(name), std::move(text)) {
  action().setMenuRole(QAction::AboutRole);
}

namespace {

Ref<MenuItem> find(const std::vector<Ref<MenuItem>>& items, const String& name) {
  for (const Ref<MenuItem>& item : items) {
    if (item->Name() == name) return item;
    if (Ref<MenuItem> below = find(item->items(), name)) return below;
  }
  return nullptr;
}

}  // namespace

Ref<MenuItem> MenuBar::Child(const String& name) const {
  return find(menus_, name);
}

void MenuBar::attachTo(QMenuBar& bar) const {
  for (const Ref<MenuItem>& menu : menus_)
    menu->attachTo(bar);
}

void MenuBar::attachKeysTo(QWidget& window) const {
  for (const Ref<MenuItem>& menu : menus_)
    menu->attachKeysTo(window);
}

}  // namespace tavrelkin
