#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin::test {

struct Area {
  std::int16_t x, y;
  std::uint16_t width, height;
};

// Another program on the display for the tests: it shows windows, moves the pointer, presses keys and changes the size
// of the screen. Each operation returns when the server has done it.
class X11Client {
 public:
  // `display` has the form of DISPLAY.
  explicit X11Client(const std::string& display);

  xcb_connection_t* connection() const { return connection_.get(); }
  xcb_window_t root() const { return screen_->root; }

  int screenWidth() const { return screen_->width_in_pixels; }
  int screenHeight() const { return screen_->height_in_pixels; }

  // Shows a window until close(). If `isAboveAll`, the window is above all others and has no frame; otherwise the
  // window manager handles it.
  xcb_window_t open(const Area& area, bool isAboveAll = true);
  void close(xcb_window_t window);

  // Paints an area of a window that open() returned, pixel by pixel. `pattern` returns 0xRRGGBB for a position on the
  // screen.
  void paint(xcb_window_t window, const Area& window_area, const std::function<std::uint32_t(int x, int y)>& pattern);
  void fill(xcb_window_t window, std::uint32_t rgb);

  // The nearest colour that the screen can show for 0xRRGGBB.
  std::uint32_t shown(std::uint32_t rgb) const { return fromStored(stored(rgb)); }

  // The colours of an area of the screen, row by row.
  std::vector<std::uint32_t> read(const Area& area) const;

  void movePointer(int x, int y) { fake(XCB_MOTION_NOTIFY, 0, x, y); }
  // Sends an event of a device as defined by the core protocol: its type, its button or key code, and the target of a
  // motion.
  void fake(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0);
  // Sends a message about a window to the clients that listen for `events` on `receiver`, or to the owner of `receiver`
  // if `events` is 0.
  void tell(xcb_window_t receiver, std::uint32_t events, xcb_window_t window, const std::string& what,
            std::uint32_t first, std::uint32_t second);
  void sync() const;
  // Makes a key the only key of a modifier, Mod1 to Mod5, and removes it from other modifiers.
  void setModifier(int mod, std::uint8_t keyCode);

  xcb_atom_t atom(const std::string& name) const;

  // Sets the settings that programs find on the screen, such as "Xft.dpi:\t96\n".
  void setResources(const std::string& lines);

  // These operations throw if the server can't do them.
  void resizeScreen(int width, int height);
  // Splits the screen into two monitors: the main one on the right, and a lower one of this width on the left.
  void splitScreen(int width);

 private:
  void draw(xcb_window_t window, const xcb_rectangle_t& rectangle, std::uint32_t rgb);
  std::uint32_t stored(std::uint32_t rgb) const;
  std::uint32_t fromStored(std::uint32_t pixel) const;
  void arrange(std::vector<std::string> changes) const;

  std::string display_;
  XcbConnection connection_;
  const xcb_screen_t* screen_;
  const xcb_visualtype_t* visual_;
  xcb_gcontext_t gc_;
};

}  // namespace tavrelkin::test
