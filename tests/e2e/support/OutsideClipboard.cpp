#include "e2e/support/OutsideClipboard.h"

#include <cstdlib>
#include <stdexcept>
#include <string_view>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

xcb_window_t OutsideClipboard::owner() const {
  constexpr std::string_view kName = "CLIPBOARD";
  auto* const c = client_.connection();
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
      xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, kName.size(), kName.data()), nullptr), &std::free);
  const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
      xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, atom->atom), nullptr), &std::free);
  return reply->owner;
}

void OutsideClipboard::copy(const std::string& text) {
  const auto before = owner();
  const std::vector<std::string> command{"xclip", "-selection", "clipboard", "-in", "-quiet"};
  auto offer = std::make_unique<Process>(command, home_.environment(server_.display()), text);
  const auto isOffered = [&] { return owner() != before && owner() != XCB_NONE; };
  if (!waitUntil(isOffered)) throw std::runtime_error("Nothing can be copied: " + offer->errors());
  offer_ = std::move(offer);
}

std::string OutsideClipboard::paste() const {
  Process reader({"xclip", "-selection", "clipboard", "-out"}, home_.environment(server_.display()));
  reader.waitForExit();
  return reader.output();
}

}  // namespace tavrelkin::test
