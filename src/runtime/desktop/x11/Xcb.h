#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>

namespace tavrelkin {

struct XcbDisconnect {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

struct XcbFree {
  void operator()(void* memory) const { std::free(memory); }
};

// A reply, event or error, which XCB leaves to the caller to free.
template <class T>
using XcbPtr = std::unique_ptr<T, XcbFree>;

// The type of an event, without the bit that marks events sent by other clients.
inline int kindOf(const xcb_generic_event_t& event) {
  return event.response_type & 0x7F;
}

// Waits for the reply to a request. Null if the server answered with an error, or if the connection is broken. `reply`
// is XCB's function for this request, such as `xcb_query_pointer_reply`.
template <class Reply, class Cookie>
XcbPtr<Reply> await(xcb_connection_t* connection, Cookie cookie,
                    Reply* (*reply)(xcb_connection_t*, Cookie, xcb_generic_error_t**)) {
  return XcbPtr<Reply>(reply(connection, cookie, nullptr));
}

// The server's number for a name; XCB_ATOM_NONE if the connection is broken.
inline xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
  const auto length = static_cast<std::uint16_t>(name.size());
  const auto reply = await(connection, xcb_intern_atom(connection, 0, length, name.data()), xcb_intern_atom_reply);
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace tavrelkin
