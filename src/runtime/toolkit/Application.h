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

  // Registers the handlers of the application's commands; called once, at the start.
  virtual void AddMenuHandlers() {}

  // Makes the first window; called once, before the event loop.
  virtual void MakeDefaultView() {}

  // Raised once the event loop runs.
  virtual void Event_Open() {}

  // Ends the program, without a question. Windows that are open just go, also those that a modal one blocks.
  void Quit();

  // A menu command: the front window's handler goes first, then the application's. False where neither has handled it.
  bool dispatch(const String& itemName);

  // Enables each item of the menu bar that somebody answers, and disables the others.
  void enableMenuItems();

  // The window that commands go to, or null: the open one that was last in front, also while another program is.
  Window* frontWindow() const { return openWindows_.empty() ? nullptr : openWindows_.back().get(); }

  // The open windows, the front one last.
  const std::vector<Ref<Window>>& openWindows() const { return openWindows_; }

  // The live default window of a class, or null. A default that is closed is forgotten.
  template <class W>
  Ref<W> defaultWindow() const {
    const auto found = defaults_.find(typeid(W));
    return found == defaults_.end() ? Ref<W>() : Ref<W>(static_cast<W*>(found->second));
  }
  // The default window of a class. Makes and shows one if it has been closed.
  template <class W>
  Ref<W> defaultWindowOrNew() {
    if (Ref<W> live = defaultWindow<W>()) return live;
    Ref<W> made = New<W>();
    defaults_.emplace(typeid(W), made.get());
    made->Show();
    return made;
  }

  // For windows: one is shown, comes to the front, or goes.
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
