#pragma once

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace tavrelkin {

struct XcbDisconnect {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

struct XcbFree {
  void operator()(void* memory) const { std::free(memory); }
};

// A reply, event or error, which XCB leaves to its caller to free.
template <class T>
using XcbPtr = std::unique_ptr<T, XcbFree>;

// Waits for the reply to a request. Nil where the server answered with an error, and where the connection is broken.
// `reply` is the function that XCB has for this request, `xcb_query_pointer_reply` and so on.
template <class Reply, class Cookie>
XcbPtr<Reply> await(xcb_connection_t* connection, Cookie cookie,
                    Reply* (*reply)(xcb_connection_t*, Cookie, xcb_generic_error_t**)) {
  return XcbPtr<Reply>(reply(connection, cookie, nullptr));
}

}  // namespace tavrelkin
