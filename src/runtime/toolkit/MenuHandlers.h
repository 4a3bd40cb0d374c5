#pragma once

#include <functional>
#include <map>
#include <utility>

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The commands that a window or the application answers, by the names of their menu items. A handler returns true as
// handled.
class MenuHandlers {
 public:
  using Handler = std::function<bool()>;

  // Registers a handler, once for each name.
  void add(const String& itemName, Handler handler) { handlers_.emplace(itemName, std::move(handler)); }

  bool has(const String& itemName) const { return handlers_.contains(itemName); }

  // Runs the handler of that name and gives its result. False if there is no such handler.
  bool run(const String& itemName) const {
    const auto found = handlers_.find(itemName);
    return found != handlers_.end() && found->second();
  }

 private:
  std::map<String, Handler> handlers_;
};

}  // namespace tavrelkin
