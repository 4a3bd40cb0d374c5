#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The type whose payload is a colour, as "255, 128, 0". Towards other programs it is their kind of colour as well.
constexpr auto kColorData = "hcol";

// What a drag carries from one control to another: private payloads, each under a four-character type, and plain text,
// all at the same time. A type is the same only where its case is the same.
class DragItem : public Object {
 public:
  // The types that have a payload.
  std::vector<String> MacDataTypes() const;
  bool MacDataAvailable(std::string_view type) const;
  // The payload of a type, or the empty string if the item has none.
  String MacData(std::string_view type) const;
  // Adds a payload, or replaces the one of the same type.
  void MacData(std::string_view type, String payload);

  // True once a text was set, an empty one too.
  bool TextAvailable() const;
  // The text, or the empty string if the item has none.
  String Text() const;
  void SetText(String text);

  // Begins the drag, for an item that NewDragItem has made, from within a MouseDrag event. Returns when the user has
  // let go or given up; an item of another origin is not dragged. Of the press that began it, the release may still
  // come, where it falls on the control that the drag began on.
  void Drag();

  // For whoever makes an item that can be dragged.
  void onDrag(std::function<void(const DragItem&)> begin) { begin_ = std::move(begin); }

 private:
  std::map<String, String, std::less<>> payloads_;
  std::optional<String> text_;
  std::function<void(const DragItem&)> begin_;
};

}  // namespace tavrelkin
