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

// A command, a separator, or a menu with items of its own. Shown in every window that has its menu bar: a check mark or
// a disabled look is the same in all of them.
class MenuItem : public Object {
 public:
  // A "&" in the text marks the key that follows as the one that chooses the item in an open menu; "-" makes a
  // separator. A shortcut names its keys as in "Cmd+Shift+N" or is empty.
  MenuItem(String name, String text, String shortcut = {});
  ~MenuItem() override;

  const String& Name() const { return name_; }
  const String& Text() const { return text_; }
  const String& KeyboardShortcut() const { return shortcut_; }

  // Whether the runtime enables the item by its handlers.
  bool AutoEnable = true;

  Property<bool> Enabled;
  Property<bool> Checked;

  // Adds an item to the end of this one's menu.
  void Append(const Ref<MenuItem>& item);
  const std::vector<Ref<MenuItem>>& items() const { return items_; }
  bool isSeparator() const { return text_ == "-"; }

  // Whether the platform itself answers the item, so that it needs no handler.
  virtual bool answersItself() const { return false; }

  // For the menu bar: enters the item's menu, or has the shortcuts of the item and of those below it act in a window.
  void attachTo(QMenuBar& bar) const;
  void attachKeysTo(QWidget& window) const;

 protected:
  QAction& action() const { return *action_; }

  // The user chose the item. The base version dispatches it as a command.
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

// Quits the program. Stands in the application menu where the platform has one.
class QuitMenuItem : public MenuItem {
 public:
  QuitMenuItem(String name, String text, String shortcut);
  bool answersItself() const override { return true; }

 protected:
  void chosen() override;
};

// An item about the program, in the application menu where the platform has one.
class AppleMenuItem : public MenuItem {
 public:
  AppleMenuItem(String name, String text);
};

// A row of menus, which any number of windows can show.
class MenuBar : public Object {
 public:
  void Append(const Ref<MenuItem>& menu) { menus_.push_back(menu); }
  const std::vector<Ref<MenuItem>>& menus() const { return menus_; }

  // The item of that name, at any depth; nil if no item has it.
  Ref<MenuItem> Child(const String& name) const;

  // For a window: enters all menus, or has their shortcuts act though the window shows no menus.
  void attachTo(QMenuBar& bar) const;
  void attachKeysTo(QWidget& window) const;

 private:
  std::vector<Ref<MenuItem>> menus_;
};

}  // namespace tavrelkin
