#pragma once

#include <cstdint>
#include <optional>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

// The modifiers of an X server that count as the Option key: Mod1, which is Alt, and those of AltGr, the level-3 shift,
// which differ by keyboard layout.
class OptionKeys {
 public:
  // The connection must outlive the object.
  explicit OptionKeys(xcb_connection_t* connection) : connection_(connection) {}

  // To be told each event of the connection. The server tells every client of a change of the layout.
  void note(const xcb_generic_event_t& event) {
    if (kindOf(event) == XCB_MAPPING_NOTIFY) mask_.reset();
  }

  // A bit for each modifier, as in the mask of a pointer query. Asks the server after a change. Mod1 alone where the
  // server doesn't answer.
  std::uint16_t mask();

 private:
  xcb_connection_t* connection_;
  std::optional<std::uint16_t> mask_;
};

}  // namespace tavrelkin
