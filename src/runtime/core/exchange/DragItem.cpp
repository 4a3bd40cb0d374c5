#include "runtime/core/exchange/DragItem.h"

#include <utility>

namespace tavrelkin {

String colorDataOf(Color c) {
  return Str(c.red()) + ", " + Str(c.green()) + ", " + Str(c.blue());
}

Color colorOfData(const String& payload) {
  const auto channel = [&payload](Int32 field) { return toInt32(Val(NthField(payload, ",", field))); };
  return RGB(channel(1), channel(2), channel(3));
}

bool DragItem::MacDataAvailable(std::string_view type) const {
  return payloads_.contains(type);
}

String DragItem::MacData(std::string_view type) const {
  const auto found = payloads_.find(type);
  return found == payloads_.end() ? String() : found->second;
}

void DragItem::MacData(std::string_view type, String payload) {
  payloads_.insert_or_assign(String{type}, std::move(payload));
}

std::vector<String> DragItem::MacDataTypes() const {
  std::vector<String> types;
  for (const auto& [type, payload] : payloads_)
    types.push_back(type);
  return types;
}

bool DragItem::TextAvailable() const {
  return text_.has_value();
}

String DragItem::Text() const {
  return text_.value_or(String());
}

void DragItem::SetText(String text) {
  text_ = std::move(text);
}

void DragItem::Drag() {
  const Ref<DragItem> keep(this);
  if (begin_) begin_(*this);
}

}  // namespace tavrelkin
