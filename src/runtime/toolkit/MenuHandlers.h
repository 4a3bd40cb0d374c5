#pragma once

#include <functional>
#include <map>
#include <utility>

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The command handlers of a window or of the application, by the names of the menu items. A handler returns whether it
// has handled the command.
class MenuHandlers {
 public:
  using Handler = std::function<bool()>;

  // Registers a handler. A second handler for the same name is ignored.
  void add(const String& itemName, Handler handler) { handlers_.emplace(itemName, std::move(handler)); }

  bool has(const String& itemName) const { return handlers_.contains(itemName); }

  // Runs the handler of that name and returns its result. False if there is no such handler.
  bool run(const String& itemName) const {
    const auto found = handlers_.find(itemName);
    return found != handlers_.end() && found->second();
  }

 private:
  std::map<String, Handler> handlers_;
};

}  // namespace tavrelkin
