#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

#include "runtime/core/base/Property.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/concurrency/Control.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"
#include "runtime/toolkit/Menu.h"
#include "runtime/toolkit/MenuHandlers.h"

class QWidget;

namespace tavrelkin {

class RectControl;
class WindowWidget;

enum class WindowFrame { document, movableModal };

// What a window is made with. Sizes are those of the content, in pixels at a scale of 100 %; the menu bar, where it
// stands in the window, comes on top. The user can't resize a window.
struct WindowDesign {
  String title;
  Int32 width = 0;
  Int32 height = 0;
  WindowFrame frame = WindowFrame::document;
  bool maximizeButton = false;
};

// A window of the program. Made with New, which raises the Open events of its controls and then its own; it lives while
// it is open, referred to, or kept by one of its threads.
class Window : public ControlOwner {
 public:
  ~Window() override;

  Property<String> Title;
  // A control that has the keyboard, and that a change of size hides, gives it to one in sight.
  Property<Int32> Width;
  Property<Int32> Height;
  // The colour of the content where no control is. FillColor() of ThemeColors.h at first.
  Property<Color> BackColor;
  // The menus that the window shows. Without them, the shortcuts of the application's menu bar act in it.
  Property<Ref<tavrelkin::MenuBar>> MenuBar;

  // Opens the window, or brings it to the front where it is open, and unblocks it. A modal one blocks those that are
  // open then, until it is closed; what the user does to them brings it to the front.
  void Show();

  // Closes the window and raises Close. Does nothing where it isn't open. Safe from any handler of its own.
  void Close();

  // Brings the window to the front and gives it the keyboard.
  void SetFocus();

  bool isOpen() const { return open_; }

  // The modal window that blocks this window's input, or null.
  Window* blocker() const { return blocker_; }

  // False while the machine has said that nothing of the window is in sight, as when it is minimised.
  bool isSeen() const override;

  // The control of that name and index, or null.
  Control* control(const String& name, Int32 index = 0) const;

  // Registers the handlers of the window's commands; called once, before the Open events.
  virtual void AddMenuHandlers() {}

  virtual void Event_Open() {}
  virtual void Event_Close() {}
  virtual void Event_Minimize() {}
  virtual void Event_Activate() {}

  const MenuHandlers& menuHandlers() const { return handlers_; }

  // For the application.
  bool isModal() const;
  void setBlocker(Window* modal);
  void unblock();

  // For controls, and for whatever else shows the window on the machine.
  QWidget& content() const;
  WindowWidget& native() const { return *native_; }

 protected:
  explicit Window(const WindowDesign& design);

  void constructed() override;

  void addMenuHandler(const String& itemName, MenuHandlers::Handler handler) {
    handlers_.add(itemName, std::move(handler));
  }

  // The order in which the tabulator key visits the controls. Those that it doesn't visit when this is called are left
  // out.
  void setTabOrder(std::initializer_list<const RectControl*> controls);

 private:
  friend class WindowWidget;

  void applySize();
  void cameToFront();
  void recallBlocker();

  WindowWidget* native_;
  MenuHandlers handlers_;
  bool open_ = false;
  Window* blocker_ = nullptr;
};

}  // namespace tavrelkin
