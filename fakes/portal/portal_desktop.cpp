// Plays a desktop that casts its screen, beside a program under test, on the session's message bus. Makes the FIFO with
// the given name and prints "ready". Then obeys each line from the FIFO and answers with "done" and the time of
// completion, in nanoseconds of the steady clock.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/stat.h>

#include "fakes/portal/PlayedDesktop.h"

namespace {

void say(const std::string& text) {
  std::puts(text.c_str());
  std::fflush(stdout);
}

std::string doneNow() {
  return "done " +
         std::to_string(std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count());
}

int run(const char* fifoName) {
  tavrelkin::test::PlayedDesktop desktop(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
  // Opened for writing too, so that it has no end of file between two writers.
  const int fifo = mkfifo(fifoName, 0600) == 0 ? open(fifoName, O_RDWR | O_NONBLOCK | O_CLOEXEC) : -1;
  QFile lines;
  if (!lines.open(fifo, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
    throw std::runtime_error("The FIFO can't be made.");

  QByteArray text;
  const QSocketNotifier notifier(fifo, QSocketNotifier::Read);
  QObject::connect(&notifier, &QSocketNotifier::activated, [&] {
    text += lines.read(4096);
    for (qsizetype end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
      say(desktop.obey(QString::fromUtf8(text.left(end))) ? doneNow() : "unknown command");
      text.remove(0, end + 1);
    }
  });
  say("ready");
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  try {
    return argc == 2 ? run(argv[1]) : EXIT_FAILURE;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
  }
}
