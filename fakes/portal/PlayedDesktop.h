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

// A desktop that casts its screen: it plays the portal, PipeWire and the monitors, and obeys a test's lines of text.
// Each monitor sends its frame and the pointer when a receiver connects, and after that only on a change.
//
//   monitors WxH+X+Y[*SCALE]...   in logical pixels; a frame has SCALE times as many; at first 1280x800+0+0
//   resize W H [MONITOR]          the size of the monitor's frames, in frame pixels
//   frame N                       shows picture number N on all monitors, see playedPixel()
//   pointer X Y [MONITOR]         moves the pointer; in pixels of the monitor's frames
//   gone                          no monitor has the pointer
//   blank                         the monitors send nothing any more
//   modes N | version N           the portal's properties; with version 0 it has no ScreenCast
//   picker N                      the version of Screenshot; 0 for none
//   response N                    the user's answer to Start
//   undecided | decide            the user delays the answer to Start, and gives it
//   mute METHOD                   the portal doesn't reply to this method
//   delay MS                      the time before each Response
//   pick R G B                    the colour that the user picks, each channel from 0 to 255
//   close                         closes the session
//   leave | enter                 the portal leaves the bus, and returns
//   crash                         PipeWire ends
class PlayedDesktop {
 public:
  explicit PlayedDesktop(const QString& busAddress);

  // Obeys a line; false if it is none of the above.
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
  QList<PortalStream> streams_;  // the streams of a portal that has left
  std::map<QString, std::function<void(const QStringList&)>> commands_;
  std::uint32_t frame_ = 0;
  std::optional<std::size_t> pointerOn_ = 0;
  ScreenPoint pointer_;
  bool isBlank_ = false;
  QTimer timer_;
};

}  // namespace tavrelkin::test
