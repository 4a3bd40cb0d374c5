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

// A desktop that a test plays: the screen is a function of the place, the pointer and the clock stand where the test
// puts them, and messages are recorded in place of being shown.
class FakeDesktop : public Desktop, public ScreenReader {
 public:
  // What the test plays.
  std::function<std::uint32_t(ScreenPoint)> screen = [](ScreenPoint) { return 0u; };
  ScreenPoint pointerAt;
  bool optionHeld = false;
  ScreenState screenState = ScreenState::live;
  bool tellsChanges = false;
  bool canPick = false;
  // What the desktop does when the program asks for the screen.
  std::function<void(Picked)> requested = [](const Picked&) {};
  // What the user does in the colour dialog, given the colour that it begins at: nothing is giving up.
  std::function<std::optional<std::uint32_t>(std::uint32_t)> colorChoice = [](std::uint32_t) { return std::nullopt; };
  // What the user does in the save dialog, given the name that it begins with: a path, or nothing for giving up.
  std::function<std::optional<std::string>(const std::string&)> saveChoice = [](const std::string&) {
    return std::nullopt;
  };
  // Where the program's own files go. The desktop has no such place while it is empty.
  std::string applicationData;
  std::chrono::nanoseconds frame{std::chrono::milliseconds(16)};

  // What the program did.
  std::vector<std::string> messages;
  std::vector<ScreenPoint> pixelsRead;
  std::vector<std::string> colorPrompts;
  std::vector<std::string> saveNames;
  int turns = 0;
  bool watchesScreen() const { return static_cast<bool>(changed_); }

  // Moves the pointer, and tells whoever watches it.
  void movePointer(ScreenPoint to);

  // Lets time go by, ringing each alarm at its time. With no time, what is due now rings, once each.
  void advance(std::chrono::nanoseconds by);

  // The time until the next alarm, or none.
  std::optional<std::chrono::nanoseconds> nextAlarm() const;

  // Tells whoever watches the screen that it has changed.
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

  // Has each look at the clock take some time, for code that works until its time is over.
  std::chrono::nanoseconds costOfLook{0};

 private:
  class FakeAlarm;

  FakeAlarm* next(TimePoint until) const;

  mutable TimePoint now_{std::chrono::seconds(1000)};
  std::function<void()> changed_;
  std::vector<FakeAlarm*> alarms_;
};

}  // namespace tavrelkin
