#include "e2e/support/Windows.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <ranges>

namespace tavrelkin::test {

namespace {

constexpr std::uint32_t kFromPager = 2;
constexpr std::uint32_t kIconic = 3;
constexpr std::uint32_t kLongest = 1024;  // of a property, in units of four bytes

template <class T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
  return {reply, &std::free};
}

}  // namespace

xcb_atom_t Windows::atom(const std::string& name) const {
  auto* const c = client_.connection();
  const auto cookie = xcb_intern_atom(c, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = owned(xcb_intern_atom_reply(c, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string Windows::property(xcb_window_t window, const std::string& name) const {
  auto* const c = client_.connection();
  const auto cookie = xcb_get_property(c, 0, window, atom(name), XCB_ATOM_ANY, 0, kLongest);
  const auto reply = owned(xcb_get_property_reply(c, cookie, nullptr));
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

bool Windows::areManaged() const {
  return !numbers(client_.root(), "_NET_SUPPORTING_WM_CHECK").empty();
}

std::vector<xcb_window_t> Windows::all() const {
  return numbers(client_.root(), "_NET_CLIENT_LIST");
}

std::vector<xcb_window_t> Windows::titled(const std::string& beginning) const {
  auto result = all();
  std::erase_if(result, [&](xcb_window_t window) { return !title(window).starts_with(beginning); });
  return result;
}

std::string Windows::title(xcb_window_t window) const {
  return property(window, "_NET_WM_NAME");
}

std::string Windows::className(xcb_window_t window) const {
  return property(window, "WM_CLASS");
}

std::uint32_t Windows::iconWidth(xcb_window_t window) const {
  const auto icons = numbers(window, "_NET_WM_ICON");
  return icons.empty() ? 0 : icons[0];
}

Area Windows::area(xcb_window_t window) const {
  auto* const c = client_.connection();
  const auto size = owned(xcb_get_geometry_reply(c, xcb_get_geometry(c, window), nullptr));
  const auto place =
      owned(xcb_translate_coordinates_reply(c, xcb_translate_coordinates(c, window, client_.root(), 0, 0), nullptr));
  if (!size || !place) return {};
  return {place->dst_x, place->dst_y, size->width, size->height};
}

bool Windows::hasKeyboard(xcb_window_t window) const {
  auto* const c = client_.connection();
  const auto reply = owned(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
  return reply && reply->focus == window;
}

bool Windows::isMinimised(xcb_window_t window) const {
  const auto state = numbers(window, "WM_STATE");
  return !state.empty() && state[0] == kIconic;
}

void Windows::ask(xcb_window_t window, const std::string& what, std::uint32_t first) {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = atom(what);
  message.data.data32[0] = first;
  message.data.data32[1] = what == "_NET_CLOSE_WINDOW" ? kFromPager : 0;
  char bytes[32];
  std::memcpy(bytes, &message, sizeof bytes);
  xcb_send_event(client_.connection(), 0, client_.root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, bytes);
  client_.sync();
}

void Windows::activate(xcb_window_t window) {
  ask(window, "_NET_ACTIVE_WINDOW", kFromPager);
}

void Windows::close(xcb_window_t window) {
  ask(window, "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME);
}

void Windows::minimise(xcb_window_t window) {
  ask(window, "WM_CHANGE_STATE", kIconic);
}

void Windows::moveTo(xcb_window_t window, std::int16_t x, std::int16_t y) {
  const std::int32_t place[] = {x, y};
  xcb_configure_window(client_.connection(), window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place);
  client_.sync();
}

}  // namespace tavrelkin::test
