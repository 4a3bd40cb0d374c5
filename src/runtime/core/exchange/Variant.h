#pragma once

#include <variant>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A value whose type is known only at run time. A new Variant holds nothing.
using Variant = std::variant<std::monostate, bool, Int32, Double, String, Color>;

// The number of the type of the value: 0 for nothing, 2 Int32, 5 Double, 8 String, 11 bool, 16 Color.
inline Int32 VarType(const Variant& value) {
  if (std::holds_alternative<Int32>(value)) return 2;
  if (std::holds_alternative<Double>(value)) return 5;
  if (std::holds_alternative<String>(value)) return 8;
  if (std::holds_alternative<bool>(value)) return 11;
  if (std::holds_alternative<Color>(value)) return 16;
  return 0;
}

}  // namespace tavrelkin
