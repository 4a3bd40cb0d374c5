// The selected colour of the tool window, and the controls that show and change it.

#include "color/zrColorLib.h"
#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/system/System.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

void frmVesk::setColor(Color c, bool) {
  SelectedColor = c;
  cmdColor.SetValue(c);
  view0_lblColor.Text = getStdColorString(c);
  Title = "Color: " + getDottedStr(c) + ", #" + getHexStr(SelectedColor);
  const bool unsafe = !zrColorLib_IsColorWebSafe(c);
  imgWebSafe.Visible = unsafe;
  if (unsafe) cmdMakeWebSafe.SetValue(zrColorLib_MakeWebSafe(c));
  cmdMakeWebSafe.Visible = unsafe;
  sm.SetValue(SelectedColor);
  doSetUpToolScreenPeeker();
  for (zrColorCHBar& bar : cmdMixer) {
    bar.SetBaseColor(SelectedColor);
    RuntimeBackgroundTask();
  }
}

// A hook: the preview takes a new colour at its next paint.
void frmVesk::doSetUpToolScreenPeeker() {}

bool frmVesk::cmdColor_BeforeSelectColor() {
  return false;
}

bool frmVesk::cmdColor_ShowCMM() {
  return false;
}

void frmVesk::cmdMakeWebSafe_Action() {
  setColor(cmdMakeWebSafe.Value, false);
}

void frmVesk::cmdMixer_Change(zrColorCHBar& bar) {
  setColor(bar.propBaseColor, false);
}

void frmVesk::cmdMixer_Action(zrColorCHBar& bar) {
  setColor(bar.propBaseColor, false);
  rTIP.Visible = false;
  rTIP_Timer.Mode = 0;
}

Int32 frmVesk::cmdMixer_SetColorChannel(zrColorCHBar& bar) {
  bar.SetBaseColor(cmdColor.Value);
  return bar.Index;
}

void frmVesk::cmdMixer_ValueChanging(zrColorCHBar& bar) {
  rLblTip.Text = bar.HelpTag;
  rTIP.Visible = true;
  rTIP_Timer.Mode = 2;
}

void frmVesk::rTIP_Timer_Action() {
  rTIP_Timer.Mode = 0;
  rTIP.Visible = false;
}

void frmVesk::takeFromScreen() {
  if (requestScreen()) take(System::Pixel(System::MouseX(), System::MouseY()));
}

void frmVesk::take(Color c) {
  leaveColorViews();
  setColor(c, false);
}

}  // namespace tavrelkin
