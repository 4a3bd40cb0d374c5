#include "driver/Hand.h"

#include <cctype>
#include <chrono>
#include <cstring>
#include <map>
#include <stdexcept>
#include <thread>

namespace tavrelkin::test {

namespace {

constexpr std::uint32_t kIconic = 3;
constexpr std::uint32_t kFromPager = 2;
constexpr std::uint32_t kToManager = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;

std::uint32_t keySymbol(const std::string& name) {
  static const std::map<std::string, std::uint32_t> kNamed{
      {"Ctrl", 0xFFE3}, {"Shift", 0xFFE1}, {"Alt", 0xFFE9},   {"AltGr", 0xFE03}, {"Return", 0xFF0D}, {"Escape", 0xFF1B},
      {"Tab", 0xFF09},  {"Left", 0xFF51},  {"Right", 0xFF53}, {"Up", 0xFF52},    {"Down", 0xFF54}};
  if (name.size() == 1) return static_cast<std::uint32_t>(std::tolower(static_cast<unsigned char>(name[0])));
  return kNamed.at(name);
}

}  // namespace

std::vector<xcb_window_t> Windows::titled(const std::string& beginning) const {
  auto result = all();
  std::erase_if(result, [&](xcb_window_t window) { return !title(window).starts_with(beginning); });
  return result;
}

std::string Windows::property(xcb_window_t window, const std::string& name) const {
  constexpr std::uint32_t kLongest = 1024;  // in units of four bytes
  auto* const c = client_.connection();
  const auto cookie = xcb_get_property(c, 0, window, client_.atom(name), XCB_ATOM_ANY, 0, kLongest);
  const auto reply = await(c, cookie, xcb_get_property_reply);
  if (!reply) return {};
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
  return {static_cast<const char*>(xcb_get_property_value(reply.get())), length};
}

std::vector<std::uint32_t> Windows::numbers(xcb_window_t window, const std::string& name) const {
  const std::string bytes = property(window, name);
  std::vector<std::uint32_t> result(bytes.size() / sizeof(std::uint32_t));
  if (!result.empty()) std::memcpy(result.data(), bytes.data(), result.size() * sizeof(std::uint32_t));
  return result;
}

Area Windows::area(xcb_window_t window) const {
  auto* const c = client_.connection();
  const auto size = await(c, xcb_get_geometry(c, window), xcb_get_geometry_reply);
  const auto place =
      await(c, xcb_translate_coordinates(c, window, client_.root(), 0, 0), xcb_translate_coordinates_reply);
  if (!size || !place) return {};
  return {place->dst_x, place->dst_y, size->width, size->height};
}

bool Windows::hasKeyboard(xcb_window_t window) const {
  auto* const c = client_.connection();
  const auto reply = await(c, xcb_get_input_focus(c), xcb_get_input_focus_reply);
  return reply && reply->focus == window;
}

bool Windows::isMinimised(xcb_window_t window) const {
  const auto state = numbers(window, "WM_STATE");
  return !state.empty() && state[0] == kIconic;
}

void Windows::activate(xcb_window_t window) {
  client_.tell(client_.root(), kToManager, window, "_NET_ACTIVE_WINDOW", kFromPager, 0);
}

void Windows::close(xcb_window_t window) {
  client_.tell(client_.root(), kToManager, window, "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME, kFromPager);
}

void Windows::minimise(xcb_window_t window) {
  client_.tell(client_.root(), kToManager, window, "WM_CHANGE_STATE", kIconic, 0);
}

void Windows::moveTo(xcb_window_t window, std::int16_t x, std::int16_t y) {
  const std::int32_t place[] = {x, y};
  xcb_configure_window(client_.connection(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place);
  client_.sync();
}

void Hand::rest() const {
  std::this_thread::sleep_for(std::chrono::milliseconds(80));
}

// A window manager may delay the press for a moment, and a key that follows at once would overtake it.
void Hand::click(ScreenPoint at) {
  moveTo(at);
  pressButton();
  releaseButton();
  rest();
}

// The drag pauses at each position, since programs exchange messages there.
void Hand::drag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before) {
  constexpr int kSteps = 8;
  moveTo(from);
  pressButton();
  for (int step = 1; step <= kSteps; ++step) {
    std::this_thread::sleep_for(std::chrono::milliseconds(15));
    moveTo({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  rest();
  if (before) before();
  releaseButton();
  rest();
}

void Hand::altDrag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before) {
  press("Alt");
  drag(from, to, before);
  release("Alt");
}

void Hand::keys(const std::string& chord) {
  const std::size_t end = chord.find('+');
  const std::string key = chord.substr(0, end);
  press(key);
  if (end != std::string::npos) keys(chord.substr(end + 1));
  release(key);
}

std::uint8_t Hand::keyCode(const std::string& name) const {
  auto* const c = client_.connection();
  const xcb_setup_t& setup = *xcb_get_setup(c);
  const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
  const auto mapping = await(c, xcb_get_keyboard_mapping(c, setup.min_keycode, count), xcb_get_keyboard_mapping_reply);
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (int key = 0; key < count; ++key, symbols += mapping->keysyms_per_keycode)
    if (symbols[0] == keySymbol(name)) return static_cast<std::uint8_t>(setup.min_keycode + key);
  throw std::runtime_error("The keyboard has no key for " + name + ".");
}

}  // namespace tavrelkin::test
