#include "runtime/desktop/x11/OptionKeys.h"

#include <algorithm>

namespace tavrelkin {

namespace {

constexpr xcb_keysym_t kLevel3Shift = 0xFE03;  // ISO_Level3_Shift
constexpr int kModifiers = 8;

// The symbols on the levels of each key; the first key has the lowest key code.
struct KeySymbols {
  const xcb_get_keyboard_mapping_reply_t& reply;
  xcb_keycode_t first;

  bool areOf(xcb_keycode_t key, xcb_keysym_t symbol) const {
    const int perKey = reply.keysyms_per_keycode;
    const int begin = (key - first) * perKey;
    if (begin < 0 || begin + perKey > xcb_get_keyboard_mapping_keysyms_length(&reply)) return false;
    const xcb_keysym_t* const levels = xcb_get_keyboard_mapping_keysyms(&reply) + begin;
    return std::find(levels, levels + perKey, symbol) != levels + perKey;
  }
};

// A bit for each modifier that has a key with this symbol.
std::uint16_t modifiersOf(xcb_keysym_t symbol, const xcb_get_modifier_mapping_reply_t& modifiers,
                          const KeySymbols& symbols) {
  const int perModifier = modifiers.keycodes_per_modifier;
  const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(&modifiers);
  int mask = 0;
  for (int modifier = 0; modifier < kModifiers; ++modifier, keys += perModifier)
    if (std::any_of(keys, keys + perModifier, [&](xcb_keycode_t key) { return symbols.areOf(key, symbol); }))
      mask |= 1 << modifier;
  return static_cast<std::uint16_t>(mask);
}

}  // namespace

std::uint16_t OptionKeys::mask() {
  if (mask_) return *mask_;
  const xcb_setup_t& setup = *xcb_get_setup(connection_);
  const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
  const auto keyQuestion = xcb_get_keyboard_mapping(connection_, setup.min_keycode, count);
  const auto modifierQuestion = xcb_get_modifier_mapping(connection_);
  const auto keys = await(connection_, keyQuestion, xcb_get_keyboard_mapping_reply);
  const auto modifiers = await(connection_, modifierQuestion, xcb_get_modifier_mapping_reply);
  if (!keys || !modifiers) return XCB_MOD_MASK_1;
  const std::uint16_t level3 = modifiersOf(kLevel3Shift, *modifiers, {*keys, setup.min_keycode});
  mask_ = static_cast<std::uint16_t>(XCB_MOD_MASK_1 | level3);
  return *mask_;
}

}  // namespace tavrelkin
