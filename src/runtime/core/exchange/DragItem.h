#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The type of a payload that is a colour, such as "255, 128, 0". In drags to and from other programs its MIME type is
// application/x-color.
constexpr auto kColorData = "hcol";
// The payload of a colour, and the colour of a payload. Three numbers are read, with commas between them: fractions are
// dropped, a missing number is 0, and a number below 0 or above 255 counts as 0 or 255.
String colorDataOf(Color c);
Color colorOfData(const String& payload);

// What a drag carries from one control to another: any number of private payloads, each with a four-character type, and
// a plain text. Types are case-sensitive.
class DragItem : public Object {
 public:
  // The types of all payloads, in alphabetical order.
  std::vector<String> MacDataTypes() const;
  bool MacDataAvailable(std::string_view type) const;
  // The payload of a type, or the empty string if the item has none.
  String MacData(std::string_view type) const;
  // Adds a payload, or replaces the one of the same type.
  void MacData(std::string_view type, String payload);

  // Whether a text has been set, even an empty text.
  bool TextAvailable() const;
  // The text, or the empty string if the item has none.
  String Text() const;
  void SetText(String text);

  // Drags the item, which must come from NewDragItem; does nothing for any other item. To be called from a MouseDrag
  // event. Returns when the user has released the button or cancelled the drag. A release over the control where the
  // drag began may still raise MouseUp there.
  void Drag();

  // Sets the function that Drag() calls. Only for the code that makes drag items.
  void onDrag(std::function<void(const DragItem&)> begin) { begin_ = std::move(begin); }

 private:
  std::map<String, String, std::less<>> payloads_;
  std::optional<String> text_;
  std::function<void(const DragItem&)> begin_;
};

}  // namespace tavrelkin
