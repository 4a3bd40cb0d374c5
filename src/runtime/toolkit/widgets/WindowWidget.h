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

// The widget of a Window: an optional menu bar and the content below it. Passes the toolkit's events on to the window.
class WindowWidget : public QWidget {
 public:
  WindowWidget(Window& window, const WindowDesign& design);
  ~WindowWidget() override;

  // Called when the window is destroyed. Later events of the toolkit are ignored.
  void detach() { window_ = nullptr; }

  QWidget& content() const { return *content_; }

  // Sets the size of the content in logical pixels. If no part of the control with the focus remains visible, the focus
  // moves to a visible control.
  void setContentSize(int width, int height);
  void setBackColor(const QColor& c);
  void setMenuBar(const Ref<MenuBar>& bar);
  void showInFront();

  // Whether the window has the frame of a dialog. All modal windows do.
  bool isDialog() const { return windowType() == Qt::Dialog; }

  // While blocked, the window drops the user's input and brings its blocker to the front instead.
  void setBlocked(bool blocked);

  // Whether the window was minimised since the last call, and still is. The window manager then activates another
  // window, although the user has not asked for that.
  bool passesActivationOn();

  // False while Qt reports that no part of the window is visible. True before the window is first shown.
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
  qreal scale_ = 1;  // the scale factor at the last resize
  QTimer rescaled_;
  std::unique_ptr<ModalBlock> block_;
  bool passesActivationOn_ = false;
  bool isSeen_ = true;
};

}  // namespace tavrelkin
