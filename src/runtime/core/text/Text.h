#pragma once

#include <limits>
#include <string>
#include <string_view>

#include "runtime/core/base/Number.h"

namespace tavrelkin {

// Text in UTF-8, or bytes. A string may contain zero bytes and invalid UTF-8. No function here depends on the locale,
// and all arguments are allowed.
//
// Positions are in characters, from 1, and counts are in characters. A byte that is not part of a well-formed UTF-8
// sequence counts as a character. Functions whose names end in B count bytes instead. A start below 1 counts as 1, a
// count below 0 as 0, and a range is clipped at the end of the text.
using String = std::string;

// The blanks that Trim removes and Val skips: the white space of ASCII.
constexpr std::string_view kBlanks = " \t\n\v\f\r";

// The number in decimal, with a minus sign if it is negative.
String Str(Int32 value);
// The number in upper-case hexadecimal, without leading zeros. A negative number is shown as its 32 bits in two's
// complement.
String Hex(Int32 value);
// The same with at least two digits.
String HexPair(Int32 value);
// The number at the beginning of the text, after any blanks; 0 if there is no number. The rest of the text is ignored.
// A number is an optional sign, digits with an optional decimal point, and an optional exponent; or "&h" (in any case)
// and hexadecimal digits, without a sign. A number that is too large gives the greatest Double, never infinity.
Double Val(std::string_view text);
// The value rounded to a whole number, with at least one digit and at least as many digits as the mask has zeros.
// Halves round away from zero; a value that rounds to 0 has no sign. NaN counts as 0, an infinity as the greatest
// Double of its sign.
String Format(Double value, std::string_view mask);

Int32 Len(std::string_view text);
String Left(std::string_view text, Int32 count);
String Right(std::string_view text, Int32 count);
String Mid(std::string_view text, Int32 start, Int32 length = std::numeric_limits<Int32>::max());
// The text without the blanks at both ends.
String Trim(std::string_view text);
// The text with the letters a to z in upper case, and all others unchanged.
String Uppercase(std::string_view text);

// Whether two texts are equal, ignoring the case of the letters a to z. InStr, CountFields and NthField compare in the
// same way.
bool sameText(std::string_view a, std::string_view b);
// The position of the first `find` at or after `start`, or 0 if there is none or `find` is empty.
Int32 InStr(Int32 start, std::string_view text, std::string_view find);
Int32 InStr(std::string_view text, std::string_view find);

// The number of fields, which are the parts between the separators. An empty text is one empty field. If the separator
// is empty, the whole text is one field.
Int32 CountFields(std::string_view text, std::string_view separator);
// The nth field, from 1. Empty if there is no such field.
String NthField(std::string_view text, std::string_view separator, Int32 n);

// A string of one byte: the low 8 bits of the value.
String ChrB(Int32 value);
// The first byte, 0 to 255. 0 if the string is empty.
Int32 AscB(std::string_view text);
Int32 LenB(std::string_view text);
String MidB(std::string_view text, Int32 start, Int32 length = std::numeric_limits<Int32>::max());

}  // namespace tavrelkin
