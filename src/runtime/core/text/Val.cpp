#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "runtime/core/text/Text.h"

namespace tavrelkin {

namespace {

constexpr Double kGreatest = std::numeric_limits<Double>::max();

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The value of a hexadecimal digit, or -1.
Int32 hexDigit(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

Double hexNumber(std::string_view text) {
  Double value = 0;
  for (const char c : text) {
    const Int32 digit = hexDigit(c);
    if (digit < 0) break;
    value = std::min(value * 16 + digit, kGreatest);
  }
  return value;
}

// For a decimal number that fits no Double: whether it is too large, and not too small. Its first digit that counts and
// its exponent decide together, as either may be thousands of places long.
bool isTooLarge(std::string_view number) {
  const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), mark);
  const std::size_t first = number.find_first_of("123456789");
  const Double places = static_cast<Double>(point) - static_cast<Double>(first);
  const Double exponent = mark < number.size() ? Val(number.substr(mark + 1)) : 0;
  return places + exponent > 0;
}

Double decimalNumber(std::string_view text) {
  // from_chars would read "inf" and "nan" too.
  const std::string_view digits = text.substr(text.starts_with('.') ? 1 : 0);
  if (digits.empty() || !isDigit(digits.front())) return 0;
  Double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  return isTooLarge({text.data(), end}) ? kGreatest : 0;
}

}  // namespace

Double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  if (sameText(text.substr(0, 2), "&h")) return hexNumber(text.substr(2));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const Double value = decimalNumber(text);
  return negative ? -value : value;
}

}  // namespace tavrelkin
