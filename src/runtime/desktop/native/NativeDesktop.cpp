#include "runtime/desktop/native/NativeDesktop.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <iostream>
#include <string>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMetaObject>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include "runtime/desktop/ScreenReader.h"
#include "runtime/desktop/native/ApplicationDataFolder.h"
#include "runtime/desktop/native/NoScreenReader.h"
#include "runtime/desktop/wayland/WaylandOffers.h"
#include "runtime/desktop/x11/X11Offers.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin {

namespace {

using namespace std::chrono_literals;

constexpr auto kWhyNotOnWayland =
    "This desktop session runs on Wayland, where no program may read the colours of the screen in the way that "
    "Tavrelkin does.\n\n"
    "Following the mouse and Poke work in a session on X11 (X.Org). Many login screens offer one, often under the name "
    "of the desktop with \"on Xorg\" or \"X11\" beside it.\n\n"
    "Mixing a colour on the bars, paste and copy work here as well.";

constexpr auto kWhyNotHere =
    "Tavrelkin reads the colours of the screen from an X11 display (X.Org) in full colour, and found none that it can "
    "read.\n\n"
    "Following the mouse and Poke work in a desktop session on X11.\n\n"
    "Mixing a colour on the bars, paste and copy work here as well.";

// Posted, so that it also takes effect when the event loop has not begun yet.
void endProgram(const std::string& message) {
  std::cerr << "Tavrelkin: " << message << '.' << std::endl;
  const auto leave = [] { QCoreApplication::exit(1); };
  QMetaObject::invokeMethod(QCoreApplication::instance(), leave, Qt::QueuedConnection);
}

// Under Wayland there often is an X11 display too, but it shows nothing of the screen.
bool isWaylandSession() {
  return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || QGuiApplication::platformName().startsWith("wayland");
}

std::unique_ptr<ScreenReader> makeScreenReader() {
  if (isWaylandSession()) return std::make_unique<NoScreenReader>(kWhyNotOnWayland);
  if (QGuiApplication::platformName() == "xcb")
    if (auto reader = makeX11ScreenReader(endProgram)) return reader;
  return std::make_unique<NoScreenReader>(kWhyNotHere);
}

// Qt on Wayland reads other programs by Wayland's own means, and through an X server by those of X.
std::unique_ptr<OfferSource> makeOfferSource() {
  const QString platform = QGuiApplication::platformName();
  if (platform == "xcb") return std::make_unique<X11Offers>();
  if (platform.startsWith("wayland")) return makeWaylandOffers();
  return nullptr;
}

// A dialog that has just been closed may still count as active, though it goes soon, and would take one over it along.
QWidget* frontWindow() {
  QWidget* window = QApplication::activeWindow();
  while (window && !window->isVisible())
    window = window->parentWidget();
  return window;
}

// Shows a dialog until the user closes it, and gives whether they accept. It is of use then until the event loop runs
// again. The window underneath can be closed meanwhile, which takes the dialog with it: that counts as giving up.
template <class Dialog>
bool run(const QPointer<Dialog>& dialog) {
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (dialog) dialog->deleteLater();
  return accepted && dialog;
}

class NativeAlarm final : public Alarm {
 public:
  explicit NativeAlarm(std::function<void()> ring) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout(std::move(ring));
  }

  void set(std::chrono::nanoseconds delay) override {
    constexpr std::chrono::milliseconds kLongest(INT_MAX);
    timer_.start(std::clamp(std::chrono::ceil<std::chrono::milliseconds>(delay), 0ms, kLongest));
  }

  void cancel() override { timer_.stop(); }

 private:
  QTimer timer_;
};

class NativeDesktop final : public Desktop {
 public:
  NativeDesktop()
      : reader_(makeScreenReader()), canReadScreen_(reader_->whyNoScreen().empty()), offers_(makeOfferSource()) {}

  bool canReadScreen() const override { return canReadScreen_; }
  std::string whyNoScreen() const override { return reader_->whyNoScreen(); }
  void beginTurn() override { reader_->beginTurn(); }
  std::uint32_t pixel(ScreenPoint at) override { return reader_->pixel(at); }
  ScreenPoint pointer() override { return reader_->pointer(); }
  void watchPointer(std::function<void()> moved) override { reader_->watchPointer(std::move(moved)); }
  bool optionKey() override { return reader_->optionKey(); }

  TimePoint now() const override { return std::chrono::steady_clock::now(); }
  std::chrono::nanoseconds frameInterval() const override;

  std::unique_ptr<Alarm> newAlarm(std::function<void()> ring) override {
    return std::make_unique<NativeAlarm>(std::move(ring));
  }

  void messageBox(const std::string& text) override;
  std::optional<std::uint32_t> selectColor(std::uint32_t initial, const std::string& prompt) override;
  std::optional<std::string> chooseSaveFile(const std::string& filter, const std::string& name) override;
  std::string applicationDataFolder() override { return makeApplicationDataFolder(); }
  std::unique_ptr<Offer> clipboardOffer() override;
  std::unique_ptr<Offer> dropOffer() override { return offers_ ? offers_->drop() : nullptr; }

 private:
  std::unique_ptr<ScreenReader> reader_;
  bool canReadScreen_;  // asked at each pixel
  std::unique_ptr<OfferSource> offers_;
};

// Some displays state no rate, or a senseless one.
std::chrono::nanoseconds NativeDesktop::frameInterval() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double stated = screen ? screen->refreshRate() : 0;
  const double rate = stated > 1 && stated <= 1000 ? stated : 60;
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::duration<double>(1 / rate));
}

void NativeDesktop::messageBox(const std::string& text) {
  const QPointer<QMessageBox> box(new QMessageBox(frontWindow()));
  box->setWindowTitle("Tavrelkin");
  box->setTextFormat(Qt::PlainText);
  box->setText(QString::fromStdString(text));
  box->setStandardButtons(QMessageBox::Ok);
  run(box);
}

std::optional<std::uint32_t> NativeDesktop::selectColor(std::uint32_t initial, const std::string& prompt) {
  const QPointer<QColorDialog> dialog(new QColorDialog(QColor::fromRgb(initial), frontWindow()));
  dialog->setWindowTitle(QString::fromStdString(prompt));
  if (!run(dialog)) return std::nullopt;
  return dialog->selectedColor().rgb() & 0xFFFFFF;
}

std::optional<std::string> NativeDesktop::chooseSaveFile(const std::string& filter, const std::string& name) {
  const QPointer<QFileDialog> dialog(new QFileDialog(frontWindow()));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  if (!filter.empty()) dialog->setNameFilter(QString::fromStdString(filter));
  dialog->selectFile(QString::fromStdString(name));
  if (!run(dialog)) return std::nullopt;
  return QFile::encodeName(dialog->selectedFiles().constFirst()).toStdString();
}

std::unique_ptr<Offer> NativeDesktop::clipboardOffer() {
  return offers_ && !QGuiApplication::clipboard()->ownsClipboard() ? offers_->clipboard() : nullptr;
}

}  // namespace

std::unique_ptr<Desktop> makeNativeDesktop() {
  return std::make_unique<NativeDesktop>();
}

}  // namespace tavrelkin
