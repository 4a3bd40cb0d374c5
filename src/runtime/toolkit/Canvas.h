#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/core/base/Event.h"
#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/TextPainter.h"
#include "runtime/toolkit/Accessible.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

class CanvasWidget;

// The arrow keys, as KeyDown gives them.
constexpr std::string_view kLeftArrow = "\x1C";
constexpr std::string_view kRightArrow = "\x1D";
constexpr std::string_view kUpArrow = "\x1E";
constexpr std::string_view kDownArrow = "\x1F";

// Whether a key presses a button: the space bar, Return and Enter do.
constexpr bool isPressKey(std::string_view key) {
  return key == " " || key == "\r";
}

// A control that the program draws itself. Its surface keeps what is drawn on it, in a Paint event or at any other
// time. Before each Paint event the surface is erased to the window's BackColor. Paint comes when the canvas is first
// shown, becomes visible, changes size, gets another backdrop, is enabled or disabled, and with Refresh. It does not
// come when a window is uncovered or moved. A disabled canvas gets no press, move or key, but takes drops.
class Canvas : public RectControl, private DrawingObserver {
 public:
  Canvas(Window& owner, String name);
  ~Canvas() override;

  // A picture behind the drawing, at the top left corner, in its own size, drawn through its mask. Nil at first. A
  // write refreshes the canvas.
  Property<Ref<Picture>> Backdrop;

  // Whether MouseDrag and MouseMove come again, with the same place, when the screen changes while the button is held
  // or just after the pointer has moved. A desktop may deliver the pixels under the pointer later than the movement.
  // Without effect where the desktop delivers both at once.
  bool FollowsScreen = false;

  // For drawing on the surface at any time. Reading a pixel gives what was drawn.
  tavrelkin::Graphics& Graphics() { return graphics_; }

  // Erases the surface, draws the backdrop and raises Paint. If `now` is true, the result is on the screen before
  // Refresh returns; otherwise the event loop shows it later.
  void Refresh(bool now) override;

  // Sets how the canvas presents itself to assistive technologies. At first it is a picture without cells.
  void describe(std::unique_ptr<Accessible> as) { accessible_ = std::move(as); }
  Accessible* accessible() const { return accessible_.get(); }
  // Announces a change to the assistive technologies that run.
  void announce(AccessibleChange change);

  // The events, for the host. x and y are in pixels from the canvas's top left corner; during a drag they may lie
  // outside of it. MouseDrag and MouseUp come only after a MouseDown that has returned true. MouseMove comes while no
  // button is held.
  //
  // KeyDown gets the key as one byte; true keeps the key from the rest of the window. It comes for characters and
  // arrows, and not for Tab and Shift+Tab, which only move the focus. The space bar, Return and Enter raise only one
  // KeyDown while they are held. DropObject comes only for what the canvas accepts; its `action` is 0.
  Event<void()> Open;
  Event<void(tavrelkin::Graphics* g)> Paint;
  Event<bool(Int32 x, Int32 y)> MouseDown;
  Event<void(Int32 x, Int32 y)> MouseDrag;
  Event<void(Int32 x, Int32 y)> MouseUp;
  Event<void(Int32 x, Int32 y)> MouseMove;
  Event<void()> MouseEnter;
  Event<void()> MouseExit;
  Event<bool(const String& key)> KeyDown;
  Event<void(const Ref<DragItem>& item, Int32 action)> DropObject;

  // The same events, for a subclass. The base versions raise the events above.
  void Event_Open() override { Open(); }
  virtual void Event_Paint(tavrelkin::Graphics& g) { Paint(&g); }
  virtual bool Event_MouseDown(Int32 x, Int32 y) { return MouseDown(x, y); }
  virtual void Event_MouseDrag(Int32 x, Int32 y) { MouseDrag(x, y); }
  virtual void Event_MouseUp(Int32 x, Int32 y) { MouseUp(x, y); }
  virtual void Event_MouseMove(Int32 x, Int32 y) { MouseMove(x, y); }
  virtual void Event_MouseEnter() { MouseEnter(); }
  virtual void Event_MouseExit() { MouseExit(); }
  virtual bool Event_KeyDown(const String& key) { return KeyDown(key); }
  virtual void Event_DropObject(const Ref<DragItem>& item, Int32 action) { DropObject(item, action); }

 protected:
  void resized() override;
  void enabledChanged() override;

 private:
  friend class CanvasWidget;

  void willDraw() override;
  void willDrawText(const DrawnText& text) override;
  void surfaceChanges();
  void paintAfresh();
  void backdropChanged();

  CanvasWidget& widget() const;

  Surface surface_;
  // The texts drawn since the last drawing of another kind, and the surface as it was before them.
  std::vector<DrawnText> texts_;
  Surface ground_;
  tavrelkin::Graphics graphics_;
  std::unique_ptr<Accessible> accessible_;
  bool shown_ = false;
};

}  // namespace tavrelkin
