#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/exchange/DragItem.h"
#include "runtime/core/exchange/Variant.h"
#include "runtime/core/text/Text.h"

// The text forms of a colour, colours in drags, and the web-safe palette. The functions keep no state and throw
// nothing. A function that refuses a text returns false and leaves its out-argument unchanged.
namespace tavrelkin {

// Called once at start. There is nothing to prepare.
void InitializeSupport();

// "255, 128, 0". Also the payload of the private drag type "hcol".
String getRGBStr(Color c);
// "255.128.0".
String getDottedStr(Color c);
// "FF8000".
String getHexStr(Color c);
// "255.128.0, #FF8000".
String getDottedAndHexStr(Color c);
// "Color: 255.128.0, 30.100.100, #FF8000": the channels, hue in degrees, saturation and value in percent, all without
// their fractions.
String getStdColorString(Color c);

// Reads "#FF8000" or "FF8000". Of three digits, each is a channel and is not doubled: "#F80" is (15, 8, 0). Any other
// length gives black, and a character that is not a digit counts as nothing.
Color getColorFromHex(const String& text);
// Reads three numbers with commas between them. Fractions are dropped, a missing number is 0, and a number outside 0 to
// 255 becomes 0 or 255.
Color getColorFromRGB(const String& text);
// Reads a text that the user pastes or drops, and ignores blanks around it. Accepts "#" and six characters, and any
// text with exactly two dots. Even in a text with dots, only commas separate the numbers: "255.128.0" is pure red,
// "1.5,2.5,3" is (1, 2, 3).
bool getColorFromString(const String& text, Color& out);

// The colour of a drag's private payload; black if the item is nil or has no payload.
Color getColorFromDrop(const Ref<DragItem>& item);
// The colour of a drag's text, as getColorFromString reads it. False if the item is nil or has no text, or if the text
// is refused.
bool getColorFromTextDrop(const Ref<DragItem>& item, Color& out);

// The nearest colour of the grid of 6 x 6 x 6 whose channels are multiples of 51.
Color zrColorLib_MakeWebSafe(Color c);
// Whether a Color, or a String that getColorFromString accepts, counts as web-safe; false for any other variant.
// Besides the channel values of the grid, it accepts 3, 54, 105, 156 and 207.
bool zrColorLib_IsColorWebSafe(const Variant& color);

}  // namespace tavrelkin
