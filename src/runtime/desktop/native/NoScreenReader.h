#pragma once

#include <cstdint>
#include <functional>

#include <QObject>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// The pixel at `at` of a checkerboard of greys, 0xRRGGBB, that can't be mistaken for the screen.
std::uint32_t patternOfGreys(ScreenPoint at);

// The Option key as far as the toolkit knows it. The toolkit doesn't count AltGr as a modifier, so this class follows
// AltGr's presses and releases. It sees them only while the program is in front, and takes AltGr for released when
// another program comes to the front.
class ToolkitOptionKey : public QObject {
 public:
  ToolkitOptionKey();

  // Whether Alt or AltGr is held down.
  bool isDown() const;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool isAltGrDown_ = false;
};

// Stands in for a reader in a session where the program can't read the screen. The pointer comes from the toolkit; in
// some sessions it is only up to date over the program's own windows. Movements are not reported.
class NoScreenReader final : public ScreenReader {
 public:
  // `tellWhy` shows the user why the screen can't be read. It is called once, at the first read or request, possibly
  // from a thread of the program, and must return at once.
  explicit NoScreenReader(std::function<void()> tellWhy);

  ScreenState state() const override { return ScreenState::unavailable; }
  void request(const Picked& picked) override;
  std::uint32_t pixel(ScreenPoint at) override;
  ScreenPoint pointer() override;
  void watch(std::function<void()>) override {}
  bool optionKey() override { return optionKey_.isDown(); }

 private:
  std::function<void()> tellWhy_;  // empty after the call
  ToolkitOptionKey optionKey_;
};

}  // namespace tavrelkin
