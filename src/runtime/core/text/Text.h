#pragma once

#include <limits>
#include <string>
#include <string_view>

#include "runtime/core/base/Number.h"

namespace tavrelkin {

// Text in UTF-8, or bytes: a string may hold zero bytes and bytes that are no UTF-8. No function here depends on the
// locale, and each takes any argument.
//
// Positions and counts are of characters, from 1; a byte that belongs to no well-formed UTF-8 sequence is a character
// by itself. The functions whose names end in B count bytes, for binary strings. A start below 1 counts as 1, a count
// below 0 as 0, and what reaches past the end is cut off there.
using String = std::string;

// What Trim removes and Val skips: the white space of ASCII.
constexpr std::string_view kBlanks = " \t\n\v\f\r";

// Plain decimal, with a minus sign where negative.
String Str(Int32 value);
// Upper-case hexadecimal without leading zeros; a negative number as its 32 bits of two's complement.
String Hex(Int32 value);
// The number that the text begins with, after any blanks: a sign or none, digits with or without a decimal point, and
// an exponent where it has digits; or "&h" in either case and hexadecimal digits, never negative. What follows is not
// looked at, and 0 stands for no number. The result is finite: a number too large for a Double gives the greatest one.
Double Val(std::string_view text);
// A whole number with at least as many digits as the mask has zeros, and at least one. Halves round away from zero, and
// what rounds to 0 has no sign. NaN counts as 0, an infinity as the greatest Double of its sign.
String Format(Double value, std::string_view mask);

Int32 Len(std::string_view text);
String Left(std::string_view text, Int32 count);
String Right(std::string_view text, Int32 count);
String Mid(std::string_view text, Int32 start, Int32 length = std::numeric_limits<Int32>::max());
// Without the blanks at both ends.
String Trim(std::string_view text);
// The letters a to z in upper case, all others as they are.
String Uppercase(std::string_view text);

// Whether two texts are the same but for the case of the letters a to z. All comparing of texts is of this kind.
bool sameText(std::string_view a, std::string_view b);
// The position of the first `find` at or after `start`, or 0. Nothing is found where `find` is empty.
Int32 InStr(Int32 start, std::string_view text, std::string_view find);
Int32 InStr(std::string_view text, std::string_view find);

// Fields are what lies between separators: an empty text is one empty field, and an empty separator divides nothing.
Int32 CountFields(std::string_view text, std::string_view separator);
// The field with the number n, from 1, or the empty string if the text has fewer fields.
String NthField(std::string_view text, std::string_view separator, Int32 n);

// A string of one byte, made of the low 8 bits of the value.
String ChrB(Int32 value);
// The first byte, 0 to 255, or 0 where the string is empty.
Int32 AscB(std::string_view text);
Int32 LenB(std::string_view text);
String MidB(std::string_view text, Int32 start, Int32 length = std::numeric_limits<Int32>::max());

}  // namespace tavrelkin
