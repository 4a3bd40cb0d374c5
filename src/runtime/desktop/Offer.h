#pragma once

#include <optional>
#include <string>

namespace tavrelkin {

// What another program has on offer, on the clipboard or by a drag that was just dropped. That program sends what it
// likes, or nothing, so that reading is bounded: all reads of one offer together take two seconds at the most, and what
// is longer than 1 MiB counts as absent.
class Offer {
 public:
  Offer() = default;
  Offer(const Offer&) = delete;
  Offer& operator=(const Offer&) = delete;
  virtual ~Offer() = default;

  // The bytes under a MIME type; nothing where they are not offered, or don't come within the bounds.
  virtual std::optional<std::string> bytes(const std::string& type) = 0;

  // The plain text, in well-formed UTF-8; nothing as above.
  virtual std::optional<std::string> text() = 0;
};

}  // namespace tavrelkin
