#include "e2e/support/Hand.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdlib>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace tavrelkin::test {

namespace {

constexpr std::uint8_t kLeftButton = 1;

std::uint32_t keySymbol(const std::string& name) {
  static const std::map<std::string, std::uint32_t> kNamed{
      {"Ctrl", 0xFFE3}, {"Shift", 0xFFE1}, {"Alt", 0xFFE9},   {"Return", 0xFF0D}, {"Escape", 0xFF1B},
      {"Tab", 0xFF09},  {"Left", 0xFF51},  {"Right", 0xFF53}, {"Up", 0xFF52},     {"Down", 0xFF54}};
  const auto named = kNamed.find(name);
  if (named != kNamed.end()) return named->second;
  if (name.size() != 1) throw std::invalid_argument("No key is called " + name + ".");
  return static_cast<std::uint32_t>(std::tolower(static_cast<unsigned char>(name[0])));
}

}  // namespace

void Hand::pressButton() {
  client_.fake(XCB_BUTTON_PRESS, kLeftButton);
}

void Hand::releaseButton() {
  client_.fake(XCB_BUTTON_RELEASE, kLeftButton);
}

void Hand::rest() const {
  std::this_thread::sleep_for(std::chrono::milliseconds(80));
}

// A window manager may hold the press back for a moment, and a key that follows at once would overtake it.
void Hand::click(ScreenPoint at) {
  moveTo(at);
  pressButton();
  releaseButton();
  rest();
}

// A hand takes its time, and a drag needs it: programs talk to each other at each place.
void Hand::pull(ScreenPoint from, ScreenPoint to) {
  constexpr int kSteps = 8;
  moveTo(from);
  pressButton();
  for (int step = 1; step <= kSteps; ++step) {
    std::this_thread::sleep_for(std::chrono::milliseconds(15));
    moveTo({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  rest();
}

void Hand::drag(ScreenPoint from, ScreenPoint to) {
  pull(from, to);
  releaseButton();
  rest();
}

void Hand::altDrag(ScreenPoint from, ScreenPoint to) {
  beginAltDrag(from, to);
  endAltDrag();
}

void Hand::beginAltDrag(ScreenPoint from, ScreenPoint to) {
  client_.pressAlt();
  pull(from, to);
}

void Hand::endAltDrag() {
  releaseButton();
  client_.releaseAlt();
  rest();
}

std::uint8_t Hand::keyCode(const std::string& name) const {
  const std::uint32_t wanted = keySymbol(name);
  auto* const c = client_.connection();
  const xcb_setup_t& setup = *xcb_get_setup(c);
  const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
  const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> mapping(
      xcb_get_keyboard_mapping_reply(c, xcb_get_keyboard_mapping(c, setup.min_keycode, count), nullptr), &std::free);
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (int key = 0; key < count; ++key, symbols += mapping->keysyms_per_keycode)
    if (symbols[0] == wanted) return static_cast<std::uint8_t>(setup.min_keycode + key);
  throw std::runtime_error("The keyboard has no key for " + name + ".");
}

void Hand::keys(const std::string& chord) {
  std::vector<std::uint8_t> codes;
  std::istringstream names(chord);
  for (std::string name; std::getline(names, name, '+');)
    codes.push_back(keyCode(name));
  for (const std::uint8_t code : codes)
    client_.fake(XCB_KEY_PRESS, code);
  std::reverse(codes.begin(), codes.end());
  for (const std::uint8_t code : codes)
    client_.fake(XCB_KEY_RELEASE, code);
}

}  // namespace tavrelkin::test
