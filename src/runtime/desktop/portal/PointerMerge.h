#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// Where the pointer is now, from two sources that each know a part of it. The desktop's stream knows the place on the
// screen, but some 20 ms late, and later where the desktop repaints slowly. The toolkit's mouse events come at once,
// but know the place within a window only, and a program on Wayland is not told where its windows are.
//
// The window's place is learnt while both rest, and added to the places of the events from then on. Plain numbers, no
// clock of its own: the caller says what time it is.
class PointerMerge {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  // What the stream knows, and since when it has known that place.
  struct Stream {
    ScreenPoint place;
    TimePoint since;
  };

  // How long the stream must rest after an event until the two count as agreeing, and how late it may be at the most.
  static constexpr std::chrono::milliseconds kRest{100};
  static constexpr std::chrono::milliseconds kLatest{250};

  // An event of the pointer in a window, at `local` in screen pixels from its top left corner. The place may lie
  // outside of the window while a button is held. `stream` is what the stream knew when the event came, if anything.
  void moved(std::uintptr_t window, ScreenPoint local, const std::optional<Stream>& stream, TimePoint now);

  // The pointer is in no window of the program, or its window may have moved: events say nothing any more.
  void forget();

  // The pointer's place by the newest event; nothing where the window's place is not known.
  std::optional<ScreenPoint> place(const std::optional<Stream>& stream, TimePoint now);

 private:
  struct Local {
    std::uintptr_t window;
    ScreenPoint at;
    TimePoint when;
  };

  void learn(const std::optional<Stream>& stream, TimePoint now);

  std::optional<Local> local_;         // the newest event, while the pointer is in a window
  std::optional<ScreenPoint> window_;  // the place of that window on the screen
};

}  // namespace tavrelkin
