#include "runtime/toolkit/Runtime.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPalette>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/desktop/native/NativeDesktop.h"
#include "runtime/toolkit/accessibility/Accessibility.h"
#include "runtime/toolkit/widgets/Fonts.h"
#include "runtime/toolkit/widgets/HeldKeys.h"

namespace tavrelkin {

namespace {

// Without a display Qt aborts with a message for developers. This prints a message for users instead and exits. All
// other messages of Qt are printed as they are; they name what was tried.
void tellNoDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type != QtFatalMsg)
    return void(std::cerr << qFormatLogMessage(type, context, message).toStdString() << std::endl);
  std::cerr
      << "Tavrelkin: no display was found to show its windows on. Start it in a desktop session, or set DISPLAY to "
         "a display that it may use."
      << std::endl;
  std::_Exit(1);
}

// The program has no command line, so Qt gets its name as the only argument.
std::unique_ptr<QApplication> makeToolkit() {
  static std::array name{'t', 'a', 'v', 'r', 'e', 'l', 'k', 'i', 'n', '\0'};
  static std::array<char*, 2> arguments{name.data(), nullptr};
  static int count = 1;
  const QtMessageHandler usual = qInstallMessageHandler(tellNoDisplay);
  auto toolkit = std::make_unique<QApplication>(count, arguments.data());
  qInstallMessageHandler(usual);
  return toolkit;
}

// A light palette for every theme of the desktop, since the windows have light colours of their own.
QPalette lightPalette() {
  QPalette colors(QColor(0xEFEFEF));
  colors.setColor(QPalette::Highlight, QColor(0x308CC6));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::ToolTipBase, QColor(0xFFF8CE));
  colors.setColor(QPalette::ToolTipText, Qt::black);
  return colors;
}

QIcon readIcon(const std::string& folder) {
  QIcon icon;
  for (const QFileInfo& picture : QDir(QString::fromStdString(folder)).entryInfoList(QDir::Files))
    icon.addFile(picture.filePath());
  return icon;
}

// Shows the message from the event loop, since the fault may have happened on a thread, whose stack is too small.
void tellAndEndSoon(const std::string& fault) {
  const auto tellAndEnd = [fault] {
    desktop().messageBox("Tavrelkin has to close because of a fault in the program.\n\n" + fault);
    QCoreApplication::exit(1);
  };
  QMetaObject::invokeMethod(QCoreApplication::instance(), tellAndEnd, Qt::QueuedConnection);
}

}  // namespace

void setUpToolkit(QApplication& toolkit) {
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication::setPalette(lightPalette());
  toolkit.setApplicationName(QStringLiteral("tavrelkin"));
  toolkit.setApplicationDisplayName({});
  toolkit.setDesktopFileName(QStringLiteral("tavrelkin"));
  toolkit.setQuitOnLastWindowClosed(false);
  installAccessibility();
  installTextPainter(std::make_unique<FontPainter>());
  onFault(tellAndEndSoon);
}

// With SIGXFSZ ignored, a write beyond the limit on the size of files fails with an error, which the user is told.
// Otherwise the signal would end the program.
Runtime::Runtime(const std::string& iconFolder) : toolkit_(makeToolkit()) {
  std::signal(SIGXFSZ, SIG_IGN);
  setUpToolkit(*toolkit_);
  toolkit_->installEventFilter(new HeldKeys(toolkit_.get()));
  QApplication::setWindowIcon(readIcon(iconFolder));
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
  desktop().screenReader().dropRequest();
  forgetFault();
}

}  // namespace tavrelkin
