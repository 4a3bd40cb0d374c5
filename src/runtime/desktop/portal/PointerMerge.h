#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// Computes where the pointer is now from two sources that each know only a part. The desktop's stream reports the place
// on the screen, but some 20 ms late, and later if the desktop repaints slowly. The toolkit's mouse events come at
// once, but report only the place within a window, and on Wayland a program can't ask where its windows are.
//
// While both sources rest, this class learns the window's place; from then on it adds that to the places of the events.
// It has no clock: the caller passes the time.
class PointerMerge {
 public:
  using Clock = std::chrono::steady_clock;
  using TimePoint = Clock::time_point;

  // The pointer's place by the stream, and the time at which the stream learnt it.
  struct Stream {
    ScreenPoint place;
    TimePoint since;
  };

  // How long the stream must rest after an event before the two sources count as agreeing, and the longest delay of the
  // stream.
  static constexpr std::chrono::milliseconds kRest{100};
  static constexpr std::chrono::milliseconds kLatest{250};

  // The toolkit has reported a mouse event in `window`, at `local` in screen pixels from its top left corner. The place
  // may be outside the window while a button is held. `stream` is the stream's state at the time of the event, if it
  // has one.
  void moved(std::uintptr_t window, ScreenPoint local, const std::optional<Stream>& stream, TimePoint now);

  // The pointer has left the program's windows, or its window may have moved: the last event is no longer valid.
  void forget();

  // The pointer's place on the screen by the newest event; nothing if the window's place is not known.
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
