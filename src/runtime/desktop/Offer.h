#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace tavrelkin {

// What another program has on offer, on the clipboard or by a drag that was just dropped. That program sends what it
// likes, or nothing, so that reading is bounded: all reads of one offer together take two seconds at the most, and what
// is longer than 1 MiB counts as absent.
class Offer {
 public:
  static constexpr std::chrono::seconds kPatience{2};
  static constexpr std::size_t kMostBytes = 1 << 20;

  Offer() = default;
  Offer(const Offer&) = delete;
  Offer& operator=(const Offer&) = delete;
  virtual ~Offer() = default;

  // The bytes under a MIME type, or under another name of a type that the desktop has; nothing where they are not
  // offered, or don't come within the bounds. After a read that breaks the bounds all others of this offer give
  // nothing.
  virtual std::optional<std::string> bytes(const std::string& type) = 0;

  // The plain text, in well-formed UTF-8; nothing as above.
  std::optional<std::string> text();
};

// Where a kind of desktop has the offers of other programs. The toolkit's own reading of them is unbounded.
class OfferSource {
 public:
  OfferSource() = default;
  OfferSource(const OfferSource&) = delete;
  OfferSource& operator=(const OfferSource&) = delete;
  virtual ~OfferSource() = default;

  // What the clipboard holds, which must not be this program's own. Null where it can't be read in a bounded way. An
  // offer is of use until events are processed.
  virtual std::unique_ptr<Offer> clipboard() = 0;

  // The same for the drag, of another program, whose drop is being handled.
  virtual std::unique_ptr<Offer> drop() = 0;
};

}  // namespace tavrelkin
