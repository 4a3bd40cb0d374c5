#include "runtime/gui/Runtime.h"

#include <array>
#include <utility>

#include <QApplication>
#include <QPalette>

#include "runtime/concurrency/Scheduler.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/desktop/native/NativeDesktop.h"
#include "runtime/qt/Accessibility.h"
#include "runtime/qt/Delivery.h"

namespace tavrelkin {

namespace {

// The program has no command line: the toolkit gets its name and nothing else.
std::unique_ptr<QApplication> makeToolkit() {
  static std::array name{'t', 'a', 'v', 'r', 'e', 'l', 'k', 'i', 'n', '\0'};
  static std::array<char*, 2> arguments{name.data(), nullptr};
  static int count = 1;
  return std::make_unique<QApplication>(count, arguments.data());
}

// Light, whatever the desktop's theme is: the windows have light colours of their own.
QPalette lightPalette() {
  QPalette colors(QColor(0xEFEFEF));
  colors.setColor(QPalette::Highlight, QColor(0x308CC6));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::ToolTipBase, QColor(0xFFF8CE));
  colors.setColor(QPalette::ToolTipText, Qt::black);
  return colors;
}

}  // namespace

void applyLook(QApplication& toolkit) {
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication::setPalette(lightPalette());
  toolkit.setApplicationName(QStringLiteral("tavrelkin"));
  toolkit.setApplicationDisplayName({});
  toolkit.setDesktopFileName(QStringLiteral("tavrelkin"));
  toolkit.setQuitOnLastWindowClosed(false);
  installAccessibility();
}

Runtime::Runtime() : toolkit_(makeToolkit()) {
  applyLook(*toolkit_);
  installDesktop(makeNativeDesktop());
}

Runtime::~Runtime() {
  installDesktop(nullptr);
}

int Runtime::run(Ref<Application> application) {
  deliver([&] {
    application->AddMenuHandlers();
    application->MakeDefaultView();
  });
  QMetaObject::invokeMethod(
      toolkit_.get(), [&] { deliver([&] { application->Event_Open(); }); }, Qt::QueuedConnection);
  const int status = QApplication::exec();
  shutDownRuntime();
  application = nullptr;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return status;
}

void shutDownRuntime() {
  Scheduler::shutDown();
  forgetFault();
}

}  // namespace tavrelkin
