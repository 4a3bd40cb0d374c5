#include "runtime/core/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace tavrelkin {

namespace {

constexpr char lowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char upperCase(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::size_t atLeast(Int32 least, Int32 value) {
  return static_cast<std::size_t>(std::max(least, value));
}

Int32 asCount(std::size_t count) {
  return static_cast<Int32>(std::min<std::size_t>(count, std::numeric_limits<Int32>::max()));
}

// Whether a sequence of the right form is still not valid: overlong, a surrogate, or above U+10FFFF.
bool isForbidden(unsigned lead, unsigned second) {
  return (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) || (lead == 0xF0 && second < 0x90) ||
         (lead == 0xF4 && second > 0x8F);
}

// The length in bytes of a sequence, by its first byte, which is 0xC2 to 0xF4.
std::size_t sequenceSize(unsigned lead) {
  if (lead < 0xE0) return 2;
  return lead < 0xF0 ? 3 : 4;
}

// The length in bytes of the first character of a text that is not empty.
std::size_t characterSize(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0xC2 || lead > 0xF4) return 1;
  const std::size_t size = sequenceSize(lead);
  if (size > text.size() || isForbidden(lead, byte(1))) return 1;
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 1;
  }
  return size;
}

// The offset in bytes that is a number of characters after `from`, or the end of the text.
std::size_t skip(std::string_view text, std::size_t from, std::size_t characters) {
  std::size_t at = from;
  for (std::size_t i = 0; i < characters && at < text.size(); ++i)
    at += characterSize(text.substr(at));
  return at;
}

std::size_t countCharacters(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += characterSize(text.substr(at)))
    ++count;
  return count;
}

// The offset in bytes of the first `find` at or after `from`, or npos. Only offsets where a character begins count.
std::size_t findFrom(std::string_view text, std::string_view find, std::size_t from) {
  if (find.empty()) return std::string_view::npos;
  for (std::size_t at = from; at < text.size(); at += characterSize(text.substr(at))) {
    if (sameText(text.substr(at, find.size()), find)) return at;
  }
  return std::string_view::npos;
}

}  // namespace

String Str(Int32 value) {
  return std::to_string(value);
}

String Hex(Int32 value) {
  std::array<char, 8> digits;
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(value), 16);
  return Uppercase({digits.data(), result.ptr});
}

String HexPair(Int32 value) {
  const String digits = Hex(value);
  return digits.size() == 1 ? "0" + digits : digits;
}

String Format(Double value, std::string_view mask) {
  constexpr Double most = std::numeric_limits<Double>::max();
  const Double whole = std::isnan(value) ? 0 : std::round(std::clamp(value, -most, most));
  std::array<char, std::numeric_limits<Double>::max_exponent10 + 1> digits;
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), std::abs(whole), std::chars_format::fixed, 0);
  const std::string_view number{digits.data(), result.ptr};
  const auto wanted = static_cast<std::size_t>(std::ranges::count(mask, '0'));
  String text = whole < 0 ? "-" : "";
  if (number.size() < wanted) text.append(wanted - number.size(), '0');
  return text.append(number);
}

Int32 Len(std::string_view text) {
  return asCount(countCharacters(text));
}

String Left(std::string_view text, Int32 count) {
  return String{text.substr(0, skip(text, 0, atLeast(0, count)))};
}

String Right(std::string_view text, Int32 count) {
  const std::size_t all = countCharacters(text);
  return String{text.substr(skip(text, 0, all - std::min(all, atLeast(0, count))))};
}

String Mid(std::string_view text, Int32 start, Int32 length) {
  const std::string_view rest = text.substr(skip(text, 0, atLeast(1, start) - 1));
  return String{rest.substr(0, skip(rest, 0, atLeast(0, length)))};
}

String Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return String{text.substr(first, text.find_last_not_of(kBlanks) - first + 1)};
}

String Uppercase(std::string_view text) {
  String result{text};
  std::ranges::transform(result, result.begin(), upperCase);
  return result;
}

bool sameText(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

Int32 InStr(Int32 start, std::string_view text, std::string_view find) {
  const std::size_t found = findFrom(text, find, skip(text, 0, atLeast(1, start) - 1));
  return found == std::string_view::npos ? 0 : asCount(countCharacters(text.substr(0, found)) + 1);
}

Int32 InStr(std::string_view text, std::string_view find) {
  return InStr(1, text, find);
}

Int32 CountFields(std::string_view text, std::string_view separator) {
  std::size_t fields = 1;
  for (std::size_t at = findFrom(text, separator, 0); at != std::string_view::npos; ++fields) {
    at = findFrom(text, separator, at + separator.size());
  }
  return asCount(fields);
}

String NthField(std::string_view text, std::string_view separator, Int32 n) {
  if (n < 1) return {};
  std::size_t begin = 0;
  std::size_t end = findFrom(text, separator, begin);
  for (Int32 field = 1; field < n; ++field) {
    if (end == std::string_view::npos) return {};
    begin = end + separator.size();
    end = findFrom(text, separator, begin);
  }
  return String{text.substr(begin, end == std::string_view::npos ? end : end - begin)};
}

String ChrB(Int32 value) {
  return String(1, static_cast<char>(value & 255));
}

Int32 AscB(std::string_view text) {
  return text.empty() ? 0 : static_cast<unsigned char>(text.front());
}

Int32 LenB(std::string_view text) {
  return asCount(text.size());
}

String MidB(std::string_view text, Int32 start, Int32 length) {
  return String{text.substr(std::min(text.size(), atLeast(1, start) - 1), atLeast(0, length))};
}

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

// Whether a decimal number out of the range of a Double is too large; otherwise it is too small. The position of its
// first significant digit has to be added to the exponent, since either may be in the thousands.
bool isTooLarge(std::string_view number) {
  const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), mark);
  const std::size_t first = number.find_first_of("123456789");
  const Double places = static_cast<Double>(point) - static_cast<Double>(first);
  const Double exponent = mark < number.size() ? Val(number.substr(mark + 1)) : 0;
  return places + exponent > 0;
}

Double decimalNumber(std::string_view text) {
  // Excludes "inf" and "nan", which from_chars accepts.
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
