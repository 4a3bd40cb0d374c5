#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QString>
#include <QStringList>
#include <QTimer>

#include "fakes/portal/FakePortal.h"
#include "fakes/portal/PipeWireDaemon.h"
#include "fakes/portal/ScreenProducer.h"

namespace tavrelkin::test {

// A desktop that casts its screen: the portal, PipeWire and the monitors, played as a test says by lines of text. Each
// monitor sends its frame and the pointer when somebody begins to receive, and else on change only.
//
//   monitors WxH+X+Y[*SCALE]...   in logical pixels; a frame has SCALE times as many; at first there is 1280x800+0+0
//   resize W H [MONITOR]          the size of its frames, in their pixels
//   frame N                       shows another picture on all monitors, see playedPixel()
//   pointer X Y [MONITOR]         in pixels of the monitor's frames
//   gone                          no monitor has the pointer
//   blank                         monitors send nothing from now on
//   modes N | version N           what the portal says of itself; of version 0 it has no ScreenCast
//   picker N                      the version of Screenshot, likewise
//   response N                    the user's answer to Start
//   undecided | decide            the user lets the question wait, and answers it
//   mute METHOD                   the portal doesn't reply
//   delay MS                      before each Response
//   pick R G B                    the colour that the user picks, each part from 0 to 255
//   close                         the session
//   leave | enter                 the portal leaves the bus, and comes back
//   crash                         PipeWire ends
class PlayedDesktop {
 public:
  explicit PlayedDesktop(const QString& busAddress);

  // Does what a line says; false if that is nothing of the above.
  bool obey(const QString& line);

 private:
  struct Monitor {
    std::unique_ptr<ScreenProducer> producer;
    bool isReceived = false;
  };

  void addPortalCommands();
  void setMonitors(const QStringList& places);
  void addMonitor(const QString& place);
  void movePointer(std::size_t monitor, ScreenPoint at);
  void sendTo(std::size_t index, bool withPicture);
  void serveNewReceivers();

  PipeWireDaemon pipeWire_;
  std::vector<Monitor> monitors_;
  std::optional<FakePortal> portal_;
  QList<PortalStream> streams_;  // of a portal that has left
  std::map<QString, std::function<void(const QStringList&)>> commands_;
  std::uint32_t frame_ = 0;
  std::optional<std::size_t> pointerOn_ = 0;
  ScreenPoint pointer_;
  bool isBlank_ = false;
  QTimer timer_;
};

}  // namespace tavrelkin::test
