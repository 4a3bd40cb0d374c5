#include "runtime/desktop/x11/Selection.h"

#include <chrono>
#include <string>
#include <utility>

#include "runtime/desktop/BoundedInput.h"
#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

namespace {

class Selection final : public Offer {
 public:
  Selection(XcbConnection connection, std::string_view name, xcb_timestamp_t time);

  std::optional<std::string> bytes(const std::string& type) override;

 private:
  using Clock = std::chrono::steady_clock;

  template <class IsWanted>
  XcbPtr<xcb_generic_event_t> waitFor(IsWanted isWanted);
  bool waitForData();
  bool isConverted(xcb_atom_t target);
  bool takeAll(std::string& to);
  bool waitForPart();
  XcbPtr<xcb_get_property_reply_t> peek();
  bool take(const xcb_get_property_reply_t& part, std::string& to);

  XcbConnection connection_;
  xcb_window_t window_;
  xcb_atom_t name_;
  xcb_atom_t property_;
  xcb_atom_t inParts_;
  xcb_timestamp_t time_;
  Clock::time_point end_ = Clock::now() + kPatience;
};

Selection::Selection(XcbConnection connection, std::string_view name, xcb_timestamp_t time)
    : connection_(std::move(connection)),
      window_(xcb_generate_id(connection_.get())),
      name_(atom(connection_.get(), name)),
      property_(atom(connection_.get(), "TAVRELKIN_OFFER")),
      inParts_(atom(connection_.get(), "INCR")),
      time_(time) {
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection_.get(), 0, window_, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

// A value that is too long stays in the property on the server. The offer then ends, since another type of the same
// data would be too long as well.
std::optional<std::string> Selection::bytes(const std::string& type) {
  if (!isConverted(atom(connection_.get(), type))) return std::nullopt;
  std::string result;
  if (!takeAll(result)) {
    end_ = {};
    return std::nullopt;
  }
  xcb_delete_property(connection_.get(), window_, property_);
  return result;
}

template <class IsWanted>
XcbPtr<xcb_generic_event_t> Selection::waitFor(IsWanted isWanted) {
  xcb_flush(connection_.get());
  while (Clock::now() < end_) {
    XcbPtr<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())};
    if (event && isWanted(*event)) return event;
    if (!event && !waitForData()) break;
  }
  return nullptr;
}

// False if the time is up or the connection has failed.
bool Selection::waitForData() {
  return !xcb_connection_has_error(connection_.get()) && waitForInput(xcb_get_file_descriptor(connection_.get()), end_);
}

bool Selection::isConverted(xcb_atom_t target) {
  if (Clock::now() >= end_) return false;
  xcb_convert_selection(connection_.get(), window_, name_, target, property_, time_);
  const auto event = waitFor([&](const xcb_generic_event_t& candidate) {
    if (kindOf(candidate) != XCB_SELECTION_NOTIFY) return false;
    const auto& answer = reinterpret_cast<const xcb_selection_notify_event_t&>(candidate);
    return answer.selection == name_ && answer.target == target;
  });
  return event && reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property == property_;
}

// The owner may send a long value in parts (INCR). It sends each part after the previous part has been deleted, and an
// empty part at the end.
bool Selection::takeAll(std::string& to) {
  const auto first = peek();
  if (!first) return false;
  if (first->type != inParts_) return take(*first, to);
  for (std::size_t before = std::string::npos; before != to.size();) {
    xcb_delete_property(connection_.get(), window_, property_);
    before = to.size();
    const auto part = waitForPart() ? peek() : nullptr;
    if (!part || !take(*part, to)) return false;
  }
  return true;
}

bool Selection::waitForPart() {
  const auto event = waitFor([&](const xcb_generic_event_t& candidate) {
    if (kindOf(candidate) != XCB_PROPERTY_NOTIFY) return false;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(candidate);
    return change.atom == property_ && change.state == XCB_PROPERTY_NEW_VALUE;
  });
  return event != nullptr;
}

XcbPtr<xcb_get_property_reply_t> Selection::peek() {
  const auto cookie =
      xcb_get_property(connection_.get(), 0, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostBytes / 4);
  return await(connection_.get(), cookie, xcb_get_property_reply);
}

bool Selection::take(const xcb_get_property_reply_t& part, std::string& to) {
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(&part));
  if (part.bytes_after > 0 || length > kMostBytes - to.size()) return false;
  to.append(static_cast<const char*>(xcb_get_property_value(&part)), length);
  return true;
}

}  // namespace

std::unique_ptr<Offer> openSelection(std::string_view name, xcb_timestamp_t time) {
  XcbConnection connection(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(connection.get())) return nullptr;
  return std::make_unique<Selection>(std::move(connection), name, time);
}

}  // namespace tavrelkin
