#pragma once

#include <map>
#include <typeindex>
#include <utility>
#include <vector>

#include "runtime/core/base/Property.h"
#include "runtime/core/base/Ref.h"
#include "runtime/toolkit/Menu.h"
#include "runtime/toolkit/MenuHandlers.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

// The program as a whole: its menu bar, its commands and its open windows. There is one at a time.
class Application : public Object {
 public:
  Application();
  ~Application() override;

  // The application; throws NilObjectException if there is no application.
  static Application& current();

  Property<Ref<tavrelkin::MenuBar>> MenuBar;

  // Registers the handlers of the application's commands. Called once, at the start.
  virtual void AddMenuHandlers() {}

  // Makes the first window. Called once, before the event loop.
  virtual void MakeDefaultView() {}

  // Called once, when the event loop runs.
  virtual void Event_Open() {}

  // Ends the program without asking the user. All open windows close, also those that a modal window blocks.
  void Quit();

  // Runs the command of a menu item: the handler of the front window, and if that returns false, the handler of the
  // application. False if neither has handled the command.
  bool dispatch(const String& itemName);

  // Enables each AutoEnable item of the menu bar whose command can be handled, and disables the others.
  void enableMenuItems();

  // The window that gets the commands: the open window that was last in front, even while another program is in front.
  // Null if no window is open.
  Window* frontWindow() const { return openWindows_.empty() ? nullptr : openWindows_.back().get(); }

  // The open windows from back to front.
  const std::vector<Ref<Window>>& openWindows() const { return openWindows_; }

  // The open default window of a class, or null.
  template <class W>
  Ref<W> defaultWindow() const {
    const auto found = defaults_.find(typeid(W));
    return found == defaults_.end() ? Ref<W>() : Ref<W>(static_cast<W*>(found->second));
  }
  // The default window of a class. Makes and shows a new window if none is open.
  template <class W>
  Ref<W> defaultWindowOrNew() {
    if (Ref<W> live = defaultWindow<W>()) return live;
    Ref<W> made = New<W>();
    defaults_.emplace(typeid(W), made.get());
    made->Show();
    return made;
  }

  // Called by a window when it is shown, comes to the front or is closed.
  void windowShown(Window& window);
  void windowInFront(Window& window);
  void windowClosed(Window& window);

 protected:
  void addMenuHandler(const String& itemName, MenuHandlers::Handler handler) {
    handlers_.add(itemName, std::move(handler));
  }

 private:
  void unblockAll();
  void enable(const std::vector<Ref<MenuItem>>& items);

  MenuHandlers handlers_;
  std::vector<Ref<Window>> openWindows_;
  std::map<std::type_index, Window*> defaults_;
};

}  // namespace tavrelkin
