#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPointF>

#include "runtime/desktop/portal/PointerMerge.h"

class QWindow;

namespace tavrelkin {

// Follows the toolkit's mouse events in all windows of the program. These events come at once, but the stream reports
// the pointer late.
class WindowPointer final : public QObject {
 public:
  struct Stream {
    std::optional<PointerMerge::Stream> pointer;  // nothing while the stream is not active
    double scale = 1;                             // frame pixels per pixel of the toolkit
  };

  // `stream` returns what the stream knows now. Mouse events and place() call it.
  explicit WindowPointer(std::function<Stream()> stream);

  // The pointer's place on the screen in frame pixels, according to the newest mouse event. Nothing while the pointer
  // is outside the program's windows, or the place of its window is not known.
  std::optional<ScreenPoint> place();

  // Whether the program is handling a press, a release or a key and the stream may not know the pointer's place at that
  // moment yet. True at most once for each event.
  bool takeLateness();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  void expectLateStream();
  void noteMouse(const QWindow& window, QPointF local);

  std::function<Stream()> stream_;
  PointerMerge merge_;
  bool isStreamLate_ = false;
};

}  // namespace tavrelkin
