#pragma once

#include <memory>

#include <QTimer>
#include <QWidget>

#include "runtime/core/base/Ref.h"

class QMenuBar;

namespace tavrelkin {

class MenuBar;
class ModalBlock;
class Window;
struct WindowDesign;

// Shows a window: a menu bar on top, if there is one, and the content below it. Passes the toolkit's events on.
class WindowWidget : public QWidget {
 public:
  WindowWidget(Window& window, const WindowDesign& design);
  ~WindowWidget() override;

  // The window goes; what still comes from the toolkit is ignored.
  void detach() { window_ = nullptr; }

  QWidget& content() const { return *content_; }

  // A control that has the keyboard, and that the new size leaves no part of, gives it to one in sight.
  void setContentSize(int width, int height);
  void setBackColor(const QColor& c);
  void setMenuBar(const Ref<MenuBar>& bar);
  void showInFront();

  // Whether the window has the frame of a dialog, as modal windows do.
  bool isDialog() const { return windowType() == Qt::Dialog; }

  // While blocked, the window takes nothing from the user, and has its blocker called back instead.
  void setBlocked(bool blocked);

  // Whether another window has the activation because this one was minimised just now. True once after each time.
  bool passesActivationOn();

  // False while the toolkit says that no part of the window is in sight. Before the window is shown first it is true.
  bool isSeen() const { return isSeen_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void takeSizeAgain();
  void leaveFocus();
  bool takesTabulator(const QWidget& control) const;
  bool isInSight(const QWidget& control) const;

  Window* window_;
  QWidget* content_;
  qreal scale_ = 1;  // of the screen it was on when it was last resized
  QTimer rescaled_;
  std::unique_ptr<ModalBlock> block_;
  bool passesActivationOn_ = false;
  bool isSeen_ = true;
};

}  // namespace tavrelkin
