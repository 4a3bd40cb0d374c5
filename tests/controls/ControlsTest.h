#pragma once

#include "color/zrColorLib.h"
#include "controls/zrClutPalette.h"
#include "controls/zrColorBox.h"
#include "controls/zrColorButton.h"
#include "controls/zrColorCHBar.h"
#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"

namespace tavrelkin {

// A window with a control of each kind. It logs their events, each with a colour.
class Host : public Window {
 public:
  explicit Host(Int32 channel = 0) : Window({.title = "Host", .width = 431, .height = 200}) {
    palette.place(20, 7, 391, 105);
    palette.Open = [this] { log += "palette-opens-" + Str(palette.wBox) + " "; };
    palette.Action = [this](Int32 index, Color c) { note("selects-" + Str(index), c); };
    palette.Change = [this](Int32 index, Color c) { note("changes-" + Str(index), c); };
    box.place(20, 120, 13, 14);
    box.Action = [this] { note("box", box.Value); };
    box.ColorDrop = [this](Color c) { return note("asks", c, agrees); };
    box.ColorChanged = [this] { note("changes", box.Value); };
    button.place(60, 120, 106, 20);
    button.Open = [this] { log += "button-opens-" + Str(button.propColorFormat) + " "; };
    button.BeforeSelectColor = [this] { return note("before", button.Value, skipsDialog); };
    button.Action = [this] { note("button", button.Value); };
    button.Change = [this] { note("changes", button.Value); };
    bar.place(200, 120, 121, 20);
    bar.SetColorChannel = [channel] { return channel; };
    bar.Action = [this] { note("action", bar.propBaseColor); };
    bar.Change = [this] { note("change", bar.propBaseColor); };
    bar.ValueChanging = [this] { note("changing", bar.propBaseColor); };
  }
  bool note(const String& event, Color c, bool answer = true) {
    log += event + "-" + getHexStr(c) + " ";
    return answer;
  }

  zrClutPalette palette{*this, "palette"};
  zrColorBox box{*this, "box"};
  zrColorButton button{*this, "button"};
  zrColorCHBar bar{*this, "bar"};
  bool agrees = true;
  bool skipsDialog = false;
  String log;
};

class ControlsTest : public RuntimeTest {
 protected:
  ControlsTest() { host->Show(); }

  // Performs an act and returns the log of its events.
  String after(const std::function<void()>& act) const {
    host->log = "";
    act();
    return host->log;
  }

  Ref<Host> host = New<Host>();
};

}  // namespace tavrelkin
