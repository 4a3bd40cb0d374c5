#pragma once

#include <functional>

#include <QObject>

class QWindow;

namespace tavrelkin {

// Keeps the user's input from a window that a modal one blocks, as long as the object lives. The toolkit's own modality
// drops such input unseen, so that a minimised modal window would leave the program without an answer to any of it.
class ModalBlock : public QObject {
 public:
  // `reached` is called for each press, key, turn of the wheel and request to close that the window would have got.
  ModalBlock(QWindow& window, std::function<void()> reached);

  bool eventFilter(QObject* window, QEvent* event) override;

 private:
  std::function<void()> reached_;
};

}  // namespace tavrelkin
