#pragma once

#include "runtime/toolkit/Canvas.h"

namespace tavrelkin {

// A control that shows one colour: it can be clicked, pressed by key, and dragged away with the Option key held.
class ColorSwatch : public Canvas {
 public:
  ColorSwatch(Window& owner, String name);

  // The colour shown.
  Color Value;
  // True from the start of a drag until the next press or release.
  bool IsDrag = false;

  // A click by hand, by key or by assistive technology.
  virtual void press() = 0;
  // Whether a click has an effect. If not, assistive technologies see a picture, not a button.
  virtual bool answersClicks() const { return true; }

  void Event_MouseDrag(Int32 x, Int32 y) override;
  bool Event_MouseDown(Int32 x, Int32 y) override;
  bool Event_KeyDown(const String& key) override;
};

// Draws a rectangle of one colour in a grey and a white frame; the size is in pixels and includes the frames.
void drawSwatch(Graphics& g, Int32 x, Int32 y, Int32 width, Int32 height, Color c);

}  // namespace tavrelkin
