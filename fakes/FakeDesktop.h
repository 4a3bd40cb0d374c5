#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// A desktop that a test plays: the screen is a function of the position, the test sets the pointer and the clock, and
// messages are recorded instead of shown.
class FakeDesktop : public Desktop, public ScreenReader {
 public:
  // What the test sets.
  std::function<std::uint32_t(ScreenPoint)> screen = [](ScreenPoint) { return 0u; };
  ScreenPoint pointerAt;
  bool optionHeld = false;
  ScreenState screenState = ScreenState::live;
  bool tellsChanges = false;
  bool canPick = false;
  // Called when the program asks for the screen.
  std::function<void(Picked)> requested = [](const Picked&) {};
  // The user's choice in the colour dialog that starts at the given colour; nothing for cancelling.
  std::function<std::optional<std::uint32_t>(std::uint32_t)> colorChoice = [](std::uint32_t) { return std::nullopt; };
  // The user's choice in the save dialog that proposes the given name: a path, or nothing for cancelling.
  std::function<std::optional<std::string>(const std::string&)> saveChoice = [](const std::string&) {
    return std::nullopt;
  };
  // The folder for the program's own files; empty for a desktop without such a folder.
  std::string applicationData;
  std::chrono::nanoseconds frame{std::chrono::milliseconds(16)};

  // What the program did.
  std::vector<std::string> messages;
  std::vector<ScreenPoint> pixelsRead;
  std::vector<std::string> colorPrompts;
  std::vector<std::string> saveNames;
  int turns = 0;
  bool watchesScreen() const { return static_cast<bool>(changed_); }

  // Moves the pointer, and reports that to the watcher.
  void movePointer(ScreenPoint to);

  // Advances the clock and rings each alarm at its time. With a time of zero it rings the alarms that are due, once
  // each.
  void advance(std::chrono::nanoseconds by);

  // The time until the next alarm; nothing if no alarm is set.
  std::optional<std::chrono::nanoseconds> nextAlarm() const;

  // Reports a change on the screen to the watcher.
  void changeScreen();

  ScreenReader& screenReader() override { return *this; }
  ScreenState state() const override { return screenState; }
  void request(const Picked& picked) override { requested(picked); }
  bool canPickColor() const override { return canPick; }
  void beginTurn() override { ++turns; }
  std::uint32_t pixel(ScreenPoint at) override { return screen(pixelsRead.emplace_back(at)); }
  ScreenPoint pointer() override { return pointerAt; }
  void watch(std::function<void()> changed) override { changed_ = std::move(changed); }
  bool tellsEachChange() const override { return tellsChanges; }
  bool optionKey() override { return optionHeld; }
  TimePoint now() const override { return now_ += costOfLook; }
  std::chrono::nanoseconds frameInterval() const override { return frame; }
  std::unique_ptr<Alarm> newAlarm(std::function<void()> ring) override;
  void messageBox(const std::string& text) override { messages.push_back(text); }
  std::optional<std::uint32_t> selectColor(std::uint32_t initial, const std::string& prompt) override {
    colorPrompts.push_back(prompt);
    return colorChoice(initial);
  }
  std::optional<std::string> chooseSaveFile(const std::string&, const std::string& name) override {
    return saveChoice(saveNames.emplace_back(name));
  }
  std::string applicationDataFolder() override { return applicationData; }

  // The time that each read of the clock takes, for code that works until its time is up.
  std::chrono::nanoseconds costOfLook{0};

 private:
  class FakeAlarm;

  FakeAlarm* next(TimePoint until) const;

  mutable TimePoint now_{std::chrono::seconds(1000)};
  std::function<void()> changed_;
  std::vector<FakeAlarm*> alarms_;
};

}  // namespace tavrelkin
