#pragma once

#include <memory>
#include <vector>

#include "runtime/core/base/Property.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/text/Text.h"

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace tavrelkin {

// A command, a separator, or a menu with items. It appears in every window that has its menu bar, with the same check
// mark and the same enabled state.
class MenuItem : public Object {
 public:
  // The character after "&" in the text is the key that chooses the item in an open menu. The text "-" makes a
  // separator. A shortcut is written like "Cmd+Shift+N"; empty means no shortcut.
  MenuItem(String name, String text, String shortcut = {});
  ~MenuItem() override;

  const String& Name() const { return name_; }
  const String& Text() const { return text_; }
  const String& KeyboardShortcut() const { return shortcut_; }

  // Whether the runtime enables the item if it has a handler, and disables it otherwise.
  bool AutoEnable = true;

  Property<bool> Enabled;
  Property<bool> Checked;

  // Adds an item to the end of this item's menu.
  void Append(const Ref<MenuItem>& item);
  const std::vector<Ref<MenuItem>>& items() const { return items_; }
  bool isSeparator() const { return text_ == "-"; }

  // Whether the runtime runs the command itself, so that the item needs no handler.
  virtual bool answersItself() const { return false; }

  // For the menu bar: adds this item's menu to a bar; makes the shortcuts of this item and of its menu work in a
  // window.
  void attachTo(QMenuBar& bar) const;
  void attachKeysTo(QWidget& window) const;

 protected:
  QAction& action() const { return *action_; }

  // Called when the user has chosen the item. The base version dispatches it as a command.
  virtual void chosen();

 private:
  void applyChecked();

  String name_;
  String text_;
  String shortcut_;
  std::unique_ptr<QAction> action_;
  std::unique_ptr<QMenu> menu_;
  std::vector<Ref<MenuItem>> items_;
};

// Quits the program. On a platform with an application menu it is placed there.
class QuitMenuItem : public MenuItem {
 public:
  QuitMenuItem(String name, String text, String shortcut);
  bool answersItself() const override { return true; }

 protected:
  void chosen() override;
};

// An item about the program. On a platform with an application menu it is placed there.
class AppleMenuItem : public MenuItem {
 public:
  AppleMenuItem(String name, String text);
};

// A row of menus. Any number of windows can show it.
class MenuBar : public Object {
 public:
  void Append(const Ref<MenuItem>& menu) { menus_.push_back(menu); }
  const std::vector<Ref<MenuItem>>& menus() const { return menus_; }

  // The item of that name, at any depth. Nil if there is none.
  Ref<MenuItem> Child(const String& name) const;

  // For a window: adds all menus to its bar; makes their shortcuts work in a window that shows no menus.
  void attachTo(QMenuBar& bar) const;
  void attachKeysTo(QWidget& window) const;

 private:
  std::vector<Ref<MenuItem>> menus_;
};

}  // namespace tavrelkin
