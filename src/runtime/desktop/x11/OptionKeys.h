#pragma once

#include <cstdint>
#include <optional>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

// The X server's modifiers that count as the Option key: Mod1, which is Alt, and the modifiers of AltGr, the level-3
// shift, which depend on the keyboard layout.
class OptionKeys {
 public:
  // The connection must outlive the object.
  explicit OptionKeys(xcb_connection_t* connection) : connection_(connection) {}

  // Must be called for each event of the connection. The server sends every client an event when the layout changes.
  void note(const xcb_generic_event_t& event) {
    if (kindOf(event) == XCB_MAPPING_NOTIFY) mask_.reset();
  }

  // A bit for each of these modifiers, as in the mask of a pointer query. Asks the server once after each change of the
  // layout. Only Mod1 if the server doesn't answer.
  std::uint16_t mask();

 private:
  xcb_connection_t* connection_;
  std::optional<std::uint16_t> mask_;
};

}  // namespace tavrelkin
