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

// The fixed properties of a window. Sizes are those of the content, in pixels at a scale of 100 %. A menu bar in the
// window adds to the height. The user can't resize the window, but can close and minimise it.
struct WindowDesign {
  String title;
  Int32 width = 0;
  Int32 height = 0;
  WindowFrame frame = WindowFrame::document;
  bool maximizeButton = false;
};

// A window of the program. New makes it and raises the Open events of its controls, then its own. It lives while it is
// open, while a Ref refers to it, and while one of its threads runs.
class Window : public ControlOwner {
 public:
  ~Window() override;

  Property<String> Title;
  // The size of the content. If a change of size hides the control with the keyboard focus, the focus moves to a
  // visible control.
  Property<Int32> Width;
  Property<Int32> Height;
  // The background colour of the content. At first FillColor() of ThemeColors.h.
  Property<Color> BackColor;
  // The menus that the window shows. If nil, the shortcuts of the application's menu bar work in the window.
  Property<Ref<tavrelkin::MenuBar>> MenuBar;

  // Opens the window, or brings an open window to the front. If a modal window blocks this window, the block ends. If
  // this window is modal, it blocks all windows that are open now until it is closed. The user's input to a blocked
  // window brings the modal window to the front.
  void Show();

  // Calls Event_Close and closes the window. Does nothing if the window isn't open. May be called from the window's own
  // handlers.
  void Close();

  // Brings the window to the front and gives it the keyboard focus. Does nothing if the window isn't open.
  void SetFocus();

  bool isOpen() const { return open_; }

  // The modal window that blocks this window's input, or null.
  Window* blocker() const { return blocker_; }

  // False while the desktop reports that no part of the window is visible, for example while it is minimised.
  bool isSeen() const override;

  // The control with that name and index, or null.
  Control* control(const String& name, Int32 index = 0) const;

  // Registers the handlers of the window's commands. Called once, before the Open events.
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

  // The toolkit's widgets of the window and of its content. Only for use within the runtime.
  QWidget& content() const;
  WindowWidget& native() const { return *native_; }

 protected:
  explicit Window(const WindowDesign& design);

  void constructed() override;

  void addMenuHandler(const String& itemName, MenuHandlers::Handler handler) {
    handlers_.add(itemName, std::move(handler));
  }

  // Sets the order in which the Tab key visits the controls. Ignores controls that can't have the focus at the time of
  // the call.
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
