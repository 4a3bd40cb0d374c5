#include "runtime/desktop/native/NativeDesktop.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QMetaObject>
#include <QScreen>
#include <QTimer>

#include "runtime/desktop/ScreenReader.h"
#include "runtime/desktop/native/Dialogs.h"
#include "runtime/desktop/native/NoScreenReader.h"
#include "runtime/desktop/native/WaylandModule.h"
#include "runtime/desktop/wayland/WaylandOffers.h"
#include "runtime/desktop/x11/X11Offers.h"
#include "runtime/desktop/x11/X11ScreenReader.h"

namespace tavrelkin {

namespace {

using namespace std::chrono_literals;

constexpr auto kWhyNotOnWayland =
    "This desktop session runs on Wayland, and the part of Tavrelkin that reads the screen there can't be loaded. "
    "It needs PipeWire (libpipewire-0.3).\n\n"
    "Following the mouse and Poke also work in a session on X11 (X.Org). Many login screens offer such a session, "
    "often as the name of the desktop with \"on Xorg\" or \"X11\".\n\n"
    "You can still mix colours on the bars, copy and paste.";

constexpr auto kWhyNotHere =
    "Tavrelkin needs an X11 display (X.Org) in full colour to read the screen, and has found no such display.\n\n"
    "Following the mouse and Poke work in a desktop session on X11.\n\n"
    "You can still mix colours on the bars, copy and paste.";

// The call is posted, so that it also works before the event loop has started.
void endProgram(const std::string& message) {
  std::cerr << "Tavrelkin: " << message << '.' << std::endl;
  const auto leave = [] { QCoreApplication::exit(1); };
  QMetaObject::invokeMethod(QCoreApplication::instance(), leave, Qt::QueuedConnection);
}

// A Wayland session often has an X11 display too, but that display doesn't show the screen.
bool isWaylandSession() {
  return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || QGuiApplication::platformName().startsWith("wayland");
}

// The way to read other programs' data follows the toolkit's platform, not the session.
std::unique_ptr<OfferSource> makeOfferSource() {
  const QString platform = QGuiApplication::platformName();
  if (platform == "xcb") return std::make_unique<X11Offers>();
  if (platform.startsWith("wayland")) return makeWaylandOffers();
  return nullptr;
}

// Loads the module for the rest of the run. Null if the module, or a library that it needs, is missing.
const WaylandModule* loadWaylandModule() {
  using Entry = const WaylandModule* (*)();
  for (const char* const folder : {"/", "/" TAVRELKIN_MODULE_FOLDER "/"}) {
    QLibrary module(QCoreApplication::applicationDirPath() + folder + "tavrelkin-wayland.so");
    if (const auto entry = reinterpret_cast<Entry>(module.resolve("tavrelkinWaylandModule"))) return entry();
  }
  return nullptr;
}

// Returns the program's folder in XDG_DATA_HOME, or in ~/.local/share if that is unset or not an absolute path. Makes
// the folder if it is missing and ignores a failure.
std::string makeApplicationDataFolder() {
  QString dataHome = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(dataHome)) dataHome = QDir::homePath() + QStringLiteral("/.local/share");
  const std::filesystem::path folder = QFile::encodeName(dataHome + QStringLiteral("/tavrelkin")).toStdString();
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
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
  NativeDesktop() : reader_(makeScreenReader()), offers_(makeOfferSource()) {}

  ScreenReader& screenReader() override { return *reader_; }

  TimePoint now() const override { return std::chrono::steady_clock::now(); }
  std::chrono::nanoseconds frameInterval() const override;

  std::unique_ptr<Alarm> newAlarm(std::function<void()> ring) override {
    return std::make_unique<NativeAlarm>(std::move(ring));
  }

  void messageBox(const std::string& text) override { dialogs_.message(text); }
  std::optional<std::uint32_t> selectColor(std::uint32_t initial, const std::string& prompt) override {
    return dialogs_.color(initial, prompt);
  }
  std::optional<std::string> chooseSaveFile(const std::string& filter, const std::string& name) override {
    return dialogs_.saveFile(filter, name);
  }
  std::string applicationDataFolder() override { return makeApplicationDataFolder(); }
  std::unique_ptr<Offer> clipboardOffer() override;
  std::unique_ptr<Offer> dropOffer() override { return offers_ ? offers_->drop() : nullptr; }

 private:
  std::unique_ptr<ScreenReader> makeScreenReader();

  // Shows a message later, from the event loop. The caller may be a thread of the program, whose stack is too small for
  // a dialog.
  void tellSoon(const std::string& text);

  std::unique_ptr<ScreenReader> reader_;
  std::unique_ptr<OfferSource> offers_;
  Dialogs dialogs_;
  QObject context_;  // drops messages that are still to come when the desktop is destroyed
};

std::unique_ptr<ScreenReader> NativeDesktop::makeScreenReader() {
  if (isWaylandSession()) {
    if (const WaylandModule* const module = loadWaylandModule())
      return std::unique_ptr<ScreenReader>(
          module->makeScreenReader([this](const std::string& text) { tellSoon(text); }));
    return std::make_unique<NoScreenReader>([this] { tellSoon(kWhyNotOnWayland); });
  }
  if (QGuiApplication::platformName() == "xcb")
    if (auto reader = makeX11ScreenReader(endProgram)) return reader;
  return std::make_unique<NoScreenReader>([this] { tellSoon(kWhyNotHere); });
}

void NativeDesktop::tellSoon(const std::string& text) {
  QMetaObject::invokeMethod(
      &context_, [this, text] { messageBox(text); }, Qt::QueuedConnection);
}

// Some displays report no refresh rate, or an absurd rate. The function then assumes 60 Hz.
std::chrono::nanoseconds NativeDesktop::frameInterval() const {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double stated = screen ? screen->refreshRate() : 0;
  const double rate = stated > 1 && stated <= 1000 ? stated : 60;
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::duration<double>(1 / rate));
}

std::unique_ptr<Offer> NativeDesktop::clipboardOffer() {
  return offers_ && !QGuiApplication::clipboard()->ownsClipboard() ? offers_->clipboard() : nullptr;
}

}  // namespace

std::unique_ptr<Desktop> makeNativeDesktop() {
  return std::make_unique<NativeDesktop>();
}

}  // namespace tavrelkin
