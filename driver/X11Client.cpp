#include "driver/X11Client.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <stdexcept>

#include <xcb/xtest.h>

#include "driver/Process.h"

namespace tavrelkin::test {

namespace {

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
  for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths))
    for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals))
      if (visuals.data->visual_id == screen.root_visual) return visuals.data;
  throw std::runtime_error("The screen has no visual.");
}

// Converts one channel to the screen's format and back: the value that the window stores for a byte, and the byte that
// this value shows as.
std::uint32_t storedChannel(std::uint32_t byte, std::uint32_t mask) {
  const int bits = std::popcount(mask);
  const std::uint32_t value = bits <= 8 ? byte >> (8 - bits) : byte << (bits - 8);
  return value << std::countr_zero(mask);
}

std::uint32_t shownChannel(std::uint32_t pixel, std::uint32_t mask) {
  const int bits = std::popcount(mask);
  const std::uint32_t value = (pixel & mask) >> std::countr_zero(mask);
  if (bits >= 8) return value >> (bits - 8);
  return static_cast<std::uint32_t>(std::lround(value * 255.0 / ((1 << bits) - 1)));
}

}  // namespace

X11Client::X11Client(const std::string& display)
    : display_(display), connection_(xcb_connect(display.c_str(), nullptr)) {
  auto* const c = connection();
  if (xcb_connection_has_error(c)) throw std::runtime_error("There is no X display.");
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
  visual_ = rootVisual(*screen_);
  gc_ = xcb_generate_id(c);
  xcb_create_gc(c, gc_, root(), 0, nullptr);
}

xcb_window_t X11Client::open(const Area& area, bool isAboveAll) {
  const xcb_window_t window = xcb_generate_id(connection());
  const std::uint32_t noFrame = isAboveAll ? 1 : 0;
  xcb_create_window(connection(), XCB_COPY_FROM_PARENT, window, root(), area.x, area.y, area.width, area.height, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &noFrame);
  xcb_map_window(connection(), window);
  sync();
  return window;
}

void X11Client::close(xcb_window_t window) {
  xcb_destroy_window(connection(), window);
  sync();
}

void X11Client::paint(xcb_window_t window, const Area& window_area,
                      const std::function<std::uint32_t(int x, int y)>& pattern) {
  for (std::int16_t y = 0; y < window_area.height; ++y)
    for (std::int16_t x = 0; x < window_area.width; ++x)
      draw(window, {x, y, 1, 1}, pattern(window_area.x + x, window_area.y + y));
  sync();
}

void X11Client::fill(xcb_window_t window, std::uint32_t rgb) {
  draw(window, {0, 0, 0x7FFF, 0x7FFF}, rgb);
  sync();
}

void X11Client::draw(xcb_window_t window, const xcb_rectangle_t& rectangle, std::uint32_t rgb) {
  const std::uint32_t color = stored(rgb);
  xcb_change_gc(connection(), gc_, XCB_GC_FOREGROUND, &color);
  xcb_poly_fill_rectangle(connection(), window, gc_, 1, &rectangle);
}

std::uint32_t X11Client::stored(std::uint32_t rgb) const {
  return storedChannel(rgb >> 16 & 255, visual_->red_mask) | storedChannel(rgb >> 8 & 255, visual_->green_mask) |
         storedChannel(rgb & 255, visual_->blue_mask);
}

std::uint32_t X11Client::fromStored(std::uint32_t pixel) const {
  return shownChannel(pixel, visual_->red_mask) << 16 | shownChannel(pixel, visual_->green_mask) << 8 |
         shownChannel(pixel, visual_->blue_mask);
}

std::vector<std::uint32_t> X11Client::read(const Area& area) const {
  const auto cookie =
      xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, root(), area.x, area.y, area.width, area.height, ~0U);
  const auto image = await(connection(), cookie, xcb_get_image_reply);
  if (!image) throw std::runtime_error("This area of the screen can't be read.");
  const std::uint8_t* const bytes = xcb_get_image_data(image.get());
  const std::size_t rowBytes = std::size_t{image->length} * 4 / area.height;
  const std::size_t pixelBytes = image->depth > 16 ? 4 : 2;

  std::vector<std::uint32_t> result;
  result.reserve(std::size_t{area.width} * area.height);
  for (std::size_t y = 0; y < area.height; ++y)
    for (std::size_t x = 0; x < area.width; ++x) {
      std::uint32_t pixel = 0;
      std::memcpy(&pixel, bytes + y * rowBytes + x * pixelBytes, pixelBytes);
      result.push_back(fromStored(pixel));
    }
  return result;
}

void X11Client::fake(std::uint8_t type, std::uint8_t detail, int x, int y) {
  xcb_test_fake_input(connection(), type, detail, XCB_CURRENT_TIME, root(), static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), 0);
  sync();
}

void X11Client::setModifier(int mod, std::uint8_t keyCode) {
  constexpr int kBeforeMod1 = 3;  // the modifiers Shift, Lock and Control
  const auto mapping = await(connection(), xcb_get_modifier_mapping(connection()), xcb_get_modifier_mapping_reply);
  xcb_keycode_t* const keys = xcb_get_modifier_mapping_keycodes(mapping.get());
  std::replace(keys, keys + xcb_get_modifier_mapping_keycodes_length(mapping.get()), keyCode, xcb_keycode_t{0});
  const std::ptrdiff_t perModifier = mapping->keycodes_per_modifier;
  xcb_keycode_t* const first = keys + (kBeforeMod1 + mod - 1) * perModifier;
  std::fill_n(first, perModifier, xcb_keycode_t{0});
  *first = keyCode;
  const auto cookie = xcb_set_modifier_mapping(connection(), mapping->keycodes_per_modifier, keys);
  const auto reply = await(connection(), cookie, xcb_set_modifier_mapping_reply);
  if (!reply || reply->status != XCB_MAPPING_STATUS_SUCCESS)
    throw std::runtime_error("The modifiers can't be changed.");
}

void X11Client::tell(xcb_window_t receiver, std::uint32_t events, xcb_window_t window, const std::string& what,
                     std::uint32_t first, std::uint32_t second) {
  const xcb_client_message_event_t message{
      XCB_CLIENT_MESSAGE, 32, 0, window, atom(what), {.data32 = {first, second, 0, 0, 0}}};
  xcb_send_event(connection(), 0, receiver, events, reinterpret_cast<const char*>(&message));
  sync();
}

void X11Client::sync() const {
  await(connection(), xcb_get_input_focus(connection()), xcb_get_input_focus_reply);
}

xcb_atom_t X11Client::atom(const std::string& name) const {
  const auto cookie = xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = await(connection(), cookie, xcb_intern_atom_reply);
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void X11Client::setResources(const std::string& lines) {
  xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(lines.size()), lines.data());
  sync();
}

// Turns the monitors off first, since the screen can't be smaller than the monitors that show it.
void X11Client::resizeScreen(int width, int height) {
  arrange({"--output", "screen", "--off", "--fb", std::to_string(width) + "x" + std::to_string(height)});
}

void X11Client::splitScreen(int width) {
  const auto area = [](int areaWidth, int height, int x) {
    return std::to_string(areaWidth) + "/300x" + std::to_string(height) + "/250+" + std::to_string(x) + "+0";
  };
  const std::string left = area(width, screenHeight() - 100, 0);
  const std::string right = area(screenWidth() - width, screenHeight(), width);
  arrange({"--setmonitor", "left", left, "screen", "--setmonitor", "*right", right, "none"});
}

void X11Client::arrange(std::vector<std::string> changes) const {
  changes.insert(changes.begin(), {"xrandr", "--display", display_});
  Process xrandr(changes, {});
  if (xrandr.waitForExit() != 0) throw std::runtime_error("The screen can't be changed: " + xrandr.errors());
}

}  // namespace tavrelkin::test
