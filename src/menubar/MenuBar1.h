#pragma once

#include "runtime/toolkit/Menu.h"

namespace tavrelkin {

// The program's menu bar: the names, texts and shortcuts of all items. It knows no window: the code that handles an
// item registers a handler under the item's name.
class MenuBar1 : public MenuBar {
 public:
  MenuBar1();
  ~MenuBar1() override;

  // The one menu bar that all windows share. It is made when no reference to an earlier one is left.
  static Ref<MenuBar> Instance();
};

}  // namespace tavrelkin
