#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/exchange/DragItem.h"
#include "runtime/core/exchange/Variant.h"
#include "runtime/core/text/Text.h"

// The text forms of a colour, colours in drags, and the web-safe palette. All functions are without state, and none
// fails: where a text can be refused, the Boolean says so and the out-argument keeps its value.
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
// "Color: 255.128.0, 30.100.100, #FF8000": the channels, hue in degrees, saturation and value in percent, all cut down
// to whole numbers.
String getStdColorString(Color c);

// Reads "#FF8000" or "FF8000". Three digits are a channel each and are not doubled: "#F80" is (15, 8, 0). Any other
// length gives black, and characters that are no digits count for nothing.
Color getColorFromHex(const String& text);
// Reads three numbers with commas between them. Fractions are dropped, a missing number is 0, and one outside 0 to 255
// counts as the nearest of the two.
Color getColorFromRGB(const String& text);
// What the user pastes or drops, blanks around it ignored. Accepts "#" and six characters, and any text with exactly
// two dots. The latter is read by its commas all the same: "255.128.0" is pure red, "1.5,2.5,3" is (1, 2, 3).
bool getColorFromString(const String& text, Color& out);

// The colour of a drag's private payload. Black where the item is nil or has none.
Color getColorFromDrop(const Ref<DragItem>& item);
// The colour of a drag's text, as getColorFromString reads it. False where the item is nil, has no text, or has one
// that is refused.
bool getColorFromTextDrop(const Ref<DragItem>& item, Color& out);

// The nearest colour of the grid of 6 x 6 x 6 whose channels are multiples of 51.
Color zrColorLib_MakeWebSafe(Color c);
// Whether a Color, or a String that getColorFromString accepts, counts as web-safe; false for any other variant.
// Besides those of the grid this accepts the channel values 3, 54, 105, 156 and 207.
bool zrColorLib_IsColorWebSafe(const Variant& color);

}  // namespace tavrelkin
