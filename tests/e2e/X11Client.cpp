#include "e2e/X11Client.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <sys/uio.h>
#include <xcb/xcbext.h>
#include <xcb/xtest.h>

namespace tavrelkin::test {

namespace {

template <class T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
  if (!reply) throw std::runtime_error("The X server gave no answer.");
  return {reply, &std::free};
}

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
  for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths))
    for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals))
      if (visuals.data->visual_id == screen.root_visual) return visuals.data;
  throw std::runtime_error("The screen has no visual.");
}

// One channel on its way to the screen and back: what the window stores for a byte, and the byte that this shows as.
std::uint32_t storedChannel(std::uint32_t byte, std::uint32_t mask) {
  const int bits = std::popcount(mask);
  const std::uint32_t value = bits <= 8 ? byte >> (8 - bits) : byte << (bits - 8);
  return value << std::countr_zero(mask);
}

std::uint32_t shownChannel(std::uint32_t pixel, std::uint32_t mask) {
  const int bits = std::popcount(mask);
  const std::uint32_t value = (pixel & mask) >> std::countr_zero(mask);
  if (bits >= 8) return value >> (bits - 8);
  const double greatest = (1 << bits) - 1;
  return static_cast<std::uint32_t>(std::lround(value / greatest * 255));
}

}  // namespace

X11Client::X11Client(const char* display) {
  int number = 0;
  connection_.reset(xcb_connect(display, &number));
  if (xcb_connection_has_error(connection_.get())) throw std::runtime_error("There is no X display.");
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
  for (; number > 0; --number)
    xcb_screen_next(&screens);
  screen_ = screens.data;
  visual_ = rootVisual(*screen_);
  gc_ = xcb_generate_id(connection_.get());
  xcb_create_gc(connection_.get(), gc_, screen_->root, 0, nullptr);
}

xcb_window_t X11Client::open(const Area& area) {
  const xcb_window_t window = xcb_generate_id(connection_.get());
  const std::uint32_t noFrame = 1;
  xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, screen_->root, area.x, area.y, area.width,
                    area.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                    &noFrame);
  xcb_map_window(connection_.get(), window);
  sync();
  return window;
}

void X11Client::close(xcb_window_t window) {
  xcb_destroy_window(connection_.get(), window);
  sync();
}

void X11Client::paint(xcb_window_t window, const Area& window_area, const Pattern& pattern) {
  for (std::int16_t y = 0; y < window_area.height; ++y)
    for (std::int16_t x = 0; x < window_area.width; ++x) {
      const std::uint32_t color = stored(pattern(window_area.x + x, window_area.y + y));
      const xcb_rectangle_t pixel{x, y, 1, 1};
      xcb_change_gc(connection_.get(), gc_, XCB_GC_FOREGROUND, &color);
      xcb_poly_fill_rectangle(connection_.get(), window, gc_, 1, &pixel);
    }
  sync();
}

void X11Client::fill(xcb_window_t window, std::uint32_t rgb) {
  const std::uint32_t color = stored(rgb);
  const xcb_rectangle_t everything{0, 0, 0x7FFF, 0x7FFF};
  xcb_change_gc(connection_.get(), gc_, XCB_GC_FOREGROUND, &color);
  xcb_poly_fill_rectangle(connection_.get(), window, gc_, 1, &everything);
  sync();
}

std::uint32_t X11Client::stored(std::uint32_t rgb) const {
  return storedChannel(rgb >> 16 & 255, visual_->red_mask) | storedChannel(rgb >> 8 & 255, visual_->green_mask) |
         storedChannel(rgb & 255, visual_->blue_mask);
}

std::uint32_t X11Client::fromStored(std::uint32_t pixel) const {
  return shownChannel(pixel, visual_->red_mask) << 16 | shownChannel(pixel, visual_->green_mask) << 8 |
         shownChannel(pixel, visual_->blue_mask);
}

std::uint32_t X11Client::shown(std::uint32_t rgb) const {
  return fromStored(stored(rgb));
}

std::vector<std::uint32_t> X11Client::read(const Area& area) const {
  auto* const c = connection_.get();
  const auto cookie =
      xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, area.x, area.y, area.width, area.height, ~0U);
  const auto image = owned(xcb_get_image_reply(c, cookie, nullptr));
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

void X11Client::movePointer(int x, int y) {
  fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void X11Client::fakeAlt(std::uint8_t type) {
  auto* const c = connection_.get();
  const auto mapping = owned(xcb_get_modifier_mapping_reply(c, xcb_get_modifier_mapping(c), nullptr));
  const auto* codes = xcb_get_modifier_mapping_keycodes(mapping.get());
  fake(type, codes[std::size_t{XCB_MAP_INDEX_1} * mapping->keycodes_per_modifier]);
}

void X11Client::pressAlt() {
  fakeAlt(XCB_KEY_PRESS);
}

void X11Client::releaseAlt() {
  fakeAlt(XCB_KEY_RELEASE);
}

void X11Client::fake(std::uint8_t type, std::uint8_t detail, int x, int y) {
  xcb_test_fake_input(connection_.get(), type, detail, XCB_CURRENT_TIME, screen_->root, static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), 0);
  sync();
}

void X11Client::setResources(const std::string& lines) {
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(lines.size()), lines.data());
  sync();
}

bool X11Client::resizeScreen(std::uint16_t width, std::uint16_t height) {
  auto* const c = connection_.get();
  const auto* extension = xcb_get_extension_data(c, &xcb_randr_id);
  if (!extension || !extension->present) return false;
  const auto resources =
      owned(xcb_randr_get_screen_resources_reply(c, xcb_randr_get_screen_resources(c, screen_->root), nullptr));

  // No screen may be smaller than the monitors that show it.
  const auto* monitors = xcb_randr_get_screen_resources_crtcs(resources.get());
  for (int i = 0; i < resources->num_crtcs; ++i)
    owned(xcb_randr_set_crtc_config_reply(
        c,
        xcb_randr_set_crtc_config(c, monitors[i], XCB_CURRENT_TIME, resources->config_timestamp, 0, 0, XCB_NONE,
                                  XCB_RANDR_ROTATION_ROTATE_0, 0, nullptr),
        nullptr));

  const auto cookie = xcb_randr_set_screen_size_checked(c, screen_->root, width, height, 200, 150);
  const std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error(xcb_request_check(c, cookie), &std::free);
  return !error;
}

bool X11Client::splitScreen(std::uint16_t width) {
  constexpr int kLower = 100;
  auto* const c = connection_.get();
  const auto resources =
      owned(xcb_randr_get_screen_resources_reply(c, xcb_randr_get_screen_resources(c, screen_->root), nullptr));
  if (resources->num_outputs == 0) return false;
  const auto rest = static_cast<std::uint16_t>(screen_->width_in_pixels - width);
  const auto height = screen_->height_in_pixels;
  const auto* output = xcb_randr_get_screen_resources_outputs(resources.get());
  return setMonitor("left", {0, 0, width, static_cast<std::uint16_t>(height - kLower)}, output, false) &&
         setMonitor("right", {static_cast<std::int16_t>(width), 0, rest, height}, nullptr, true);
}

// Sent by hand: the library's function for this request gets the length wrong, which ends the connection.
bool X11Client::setMonitor(const std::string& name, const Area& area, const xcb_randr_output_t* output, bool isMain) {
  auto* const c = connection_.get();
  const auto nameLength = static_cast<std::uint16_t>(name.size());
  const auto atom = owned(xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, nameLength, name.data()), nullptr));
  struct {
    xcb_randr_set_monitor_request_t header;
    xcb_randr_monitor_info_t monitor;
    xcb_randr_output_t output;
  } request{};
  request.header.window = screen_->root;
  request.monitor = {atom->atom,      isMain,          0,          static_cast<std::uint16_t>(output ? 1 : 0),
                     area.x,          area.y,          area.width, area.height,
                     area.width / 4U, area.height / 4U};
  if (output) request.output = *output;

  const std::size_t length = sizeof request - (output ? 0 : sizeof request.output);
  iovec parts[3] = {{}, {}, {&request, length}};  // the library may need the two before
  const xcb_protocol_request_t protocol{1, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
  const xcb_void_cookie_t cookie{xcb_send_request(c, XCB_REQUEST_CHECKED, parts + 2, &protocol)};
  const std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error(xcb_request_check(c, cookie), &std::free);
  return !error;
}

void X11Client::sync() const {
  owned(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

}  // namespace tavrelkin::test
