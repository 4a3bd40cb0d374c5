#pragma once

#include <string>

#include "controls/zrColorCHBar.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {

// Windows with a bar, whose events they write down.
class BarTest : public RuntimeTest {
 protected:
  class Host : public Window {
   public:
    explicit Host(Int32 channel) : Window({.title = "Host", .width = 200, .height = 50}) {
      bar.place(10, 10, 121, 20);
      bar.SetColorChannel = [channel] { return channel; };
      bar.Action = [this] { log += "action "; };
      bar.Change = [this] { log += "change "; };
      bar.ValueChanging = [this] { log += "changing "; };
    }
    zrColorCHBar bar{*this, "bar"};
    std::string log;
  };

  static Ref<Host> open(Int32 channel, Color c) {
    Ref<Host> host = New<Host>(channel);
    host->Show();
    host->bar.SetBaseColor(c);
    return host;
  }
};

}  // namespace tavrelkin
