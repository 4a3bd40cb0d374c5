#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace tavrelkin {

// Data that another program offers on the clipboard or in a drag that was just dropped. That program may send anything,
// or nothing, so reading is bounded: all reads of one offer together take at most two seconds, and data longer than 1
// MiB count as absent.
class Offer {
 public:
  static constexpr std::chrono::seconds kPatience{2};
  static constexpr std::size_t kMostBytes = 1 << 20;

  Offer() = default;
  Offer(const Offer&) = delete;
  Offer& operator=(const Offer&) = delete;
  virtual ~Offer() = default;

  // The bytes of the type `type`: a MIME type, or a type name of the desktop, such as "UTF8_STRING" on X11. Nothing if
  // the type is not offered, or its data exceed a bound. After a read that exceeds a bound, all later reads of this
  // offer return nothing.
  virtual std::optional<std::string> bytes(const std::string& type) = 0;

  // The plain text as well-formed UTF-8; nothing in the same cases as for bytes().
  std::optional<std::string> text();
};

// Finds the offers of other programs on one kind of desktop. The toolkit can read them too, but without bounds.
class OfferSource {
 public:
  OfferSource() = default;
  OfferSource(const OfferSource&) = delete;
  OfferSource& operator=(const OfferSource&) = delete;
  virtual ~OfferSource() = default;

  // What the clipboard holds. The clipboard must not belong to this program. Null if the data can't be read with
  // bounds. The offer is valid until events are processed.
  virtual std::unique_ptr<Offer> clipboard() = 0;

  // The same for another program's drag while its drop is being handled.
  virtual std::unique_ptr<Offer> drop() = 0;
};

}  // namespace tavrelkin
