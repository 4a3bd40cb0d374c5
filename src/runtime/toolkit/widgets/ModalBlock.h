#pragma once

#include <functional>

#include <QObject>

class QWindow;

namespace tavrelkin {

// Drops the user's input to a window that a modal window blocks, while the object lives. Qt's own modality drops it
// without notice, so the program could not bring a minimised modal window back.
class ModalBlock : public QObject {
 public:
  // `reached` is called for each mouse press, key press, turn of the wheel and close request that is dropped.
  ModalBlock(QWindow& window, std::function<void()> reached);

  bool eventFilter(QObject* window, QEvent* event) override;

 private:
  std::function<void()> reached_;
};

}  // namespace tavrelkin
