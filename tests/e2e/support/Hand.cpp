#include "e2e/support/Hand.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace tavrelkin::test {

namespace {

constexpr std::uint8_t kLeftButton = 1;

std::uint32_t keySymbol(const std::string& name) {
  static const std::map<std::string, std::uint32_t> kNamed{
      {"Ctrl", 0xFFE3}, {"Shift", 0xFFE1}, {"Alt", 0xFFE9}, {"Return", 0xFF0D}, {"Escape", 0xFF1B}};
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

void Hand::click(ScreenPoint at) {
  moveTo(at);
  pressButton();
  releaseButton();
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
