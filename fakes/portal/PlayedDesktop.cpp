#include "fakes/portal/PlayedDesktop.h"

#include <stdexcept>

#include <QRegularExpression>

#include "fakes/portal/PlayedScreen.h"

namespace tavrelkin::test {

namespace {

const auto start = QStringLiteral("Start");

// The number in the argument at `index`; 0 if there is no such argument.
int number(const QStringList& arguments, int index) {
  return arguments.value(index).toInt();
}

}  // namespace

PlayedDesktop::PlayedDesktop(const QString& busAddress) {
  const auto enter = [this, busAddress] {
    portal_.emplace(busAddress);
    portal_->connectPipeWire = [this] { return pipeWire_.connect().release(); };
    portal_->streams = streams_;
  };
  enter();
  setMonitors({QStringLiteral("1280x800+0+0")});

  commands_[QStringLiteral("monitors")] = [this](auto& places) { setMonitors(places); };
  commands_[QStringLiteral("resize")] = [this](auto& a) {
    monitors_.at(static_cast<std::size_t>(number(a, 2))).producer->setSize({number(a, 0), number(a, 1)});
  };
  commands_[QStringLiteral("frame")] = [this](auto& a) {
    frame_ = a.value(0).toUInt();
    for (std::size_t i = 0; i < monitors_.size(); ++i)
      sendTo(i, true);
  };
  commands_[QStringLiteral("pointer")] = [this](auto& a) {
    movePointer(static_cast<std::size_t>(number(a, 2)), {number(a, 0), number(a, 1)});
  };
  commands_[QStringLiteral("gone")] = [this](auto&) {
    if (const auto last = std::exchange(pointerOn_, std::nullopt)) sendTo(*last, false);
  };
  commands_[QStringLiteral("leave")] = [this](auto&) {
    streams_ = portal_->streams;
    portal_.reset();
  };
  commands_[QStringLiteral("enter")] = [enter](auto&) { enter(); };
  commands_[QStringLiteral("blank")] = [this](auto&) { isBlank_ = true; };
  commands_[QStringLiteral("crash")] = [this](auto&) { pipeWire_.kill(); };
  addPortalCommands();

  timer_.callOnTimeout([this] { serveNewReceivers(); });
  timer_.start(2);
}

void PlayedDesktop::addPortalCommands() {
  commands_[QStringLiteral("modes")] = [this](auto& a) {
    portal_->cast[QStringLiteral("AvailableCursorModes")] = a.value(0).toUInt();
  };
  commands_[QStringLiteral("version")] = [this](auto& a) {
    portal_->cast[QStringLiteral("version")] = a.value(0).toUInt();
    if (number(a, 0) == 0) portal_->cast.clear();
  };
  commands_[QStringLiteral("picker")] = [this](auto& a) {
    portal_->screenshot[QStringLiteral("version")] = a.value(0).toUInt();
    if (number(a, 0) == 0) portal_->screenshot.clear();
  };
  commands_[QStringLiteral("response")] = [this](auto& a) {
    portal_->responses.erase(start);
    if (number(a, 0) != 0) portal_->responses[start] = {a.value(0).toUInt(), QVariantMap()};
  };
  commands_[QStringLiteral("undecided")] = [this](auto&) { portal_->undecided << start; };
  commands_[QStringLiteral("decide")] = [this](auto&) {
    portal_->undecided.clear();
    // The request may not have arrived yet; it is then answered when it comes.
    if (portal_->calls[start] > 0) portal_->respond(start);
  };
  commands_[QStringLiteral("mute")] = [this](auto& a) { portal_->mute << a.value(0); };
  commands_[QStringLiteral("delay")] = [this](auto& a) { portal_->delay = std::chrono::milliseconds(number(a, 0)); };
  commands_[QStringLiteral("pick")] = [this](auto& a) {
    portal_->color = {number(a, 0) / 255.0, number(a, 1) / 255.0, number(a, 2) / 255.0};
  };
  commands_[QStringLiteral("close")] = [this](auto&) { portal_->closeSession(); };
}

bool PlayedDesktop::obey(const QString& line) {
  auto words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  const auto command = commands_.find(words.value(0));
  if (command == commands_.end()) return false;
  words.removeFirst();
  command->second(words);
  return true;
}

void PlayedDesktop::setMonitors(const QStringList& places) {
  monitors_.clear();
  portal_->streams.clear();
  for (const auto& place : places)
    addMonitor(place);
}

void PlayedDesktop::addMonitor(const QString& place) {
  static const QRegularExpression form(QStringLiteral(R"(\A(\d+)x(\d+)([+-]\d+)([+-]\d+)(?:\*(\d))?\z)"));
  const auto match = form.match(place);
  if (!match.hasMatch()) throw std::runtime_error("This is not a monitor: " + place.toStdString());
  const auto part = [&](int index) { return match.captured(index).toInt(); };
  const int scale = match.captured(5).isEmpty() ? 1 : part(5);
  const ScreenProducer::Size frame{part(1) * scale, part(2) * scale};
  monitors_.push_back({std::make_unique<ScreenProducer>(pipeWire_, frame)});
  portal_->streams << monitor(monitors_.back().producer->node(), {part(3), part(4)}, {part(1), part(2)});
}

// As with compositors, the monitor that the pointer leaves also reports that.
void PlayedDesktop::movePointer(std::size_t monitor, ScreenPoint at) {
  pointer_ = at;
  const auto last = std::exchange(pointerOn_, monitor);
  if (last && *last != monitor && *last < monitors_.size()) sendTo(*last, false);
  sendTo(monitor, false);
}

void PlayedDesktop::sendTo(std::size_t index, bool withPicture) {
  if (isBlank_) return;
  const auto picture = [frame = frame_, number = static_cast<std::uint32_t>(index)](std::int32_t x, std::int32_t y) {
    return playedPixel(frame, number, x, y);
  };
  ScreenProducer::Update update{.cursorId = pointerOn_ == index ? 1U : 0U, .pointer = pointer_};
  if (withPicture) update.picture = picture;
  auto& monitor = monitors_.at(index);
  if (monitor.isReceived) monitor.producer->send(update);
}

void PlayedDesktop::serveNewReceivers() {
  for (std::size_t i = 0; i < monitors_.size(); ++i) {
    auto& monitor = monitors_[i];
    const bool isReceived = monitor.producer->waitForReceiver(true, std::chrono::milliseconds(0));
    if (std::exchange(monitor.isReceived, isReceived) != isReceived && isReceived) sendTo(i, true);
  }
}

}  // namespace tavrelkin::test
