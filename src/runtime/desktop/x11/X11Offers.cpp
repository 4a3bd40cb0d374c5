#include "runtime/desktop/x11/X11Offers.h"

#include <QGuiApplication>

#include "runtime/desktop/x11/Selection.h"
#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

X11Offers::X11Offers() {
  if (auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>()) {
    enterMessage_ = atom(x11->connection(), "XdndEnter");
    dropMessage_ = atom(x11->connection(), "XdndDrop");
    const auto* setup = xcb_get_setup(x11->connection());
    ownWindows_ = setup->resource_id_base;
    ownWindowsMask_ = ~setup->resource_id_mask;
  }
  qApp->installNativeEventFilter(this);
}

X11Offers::~X11Offers() {
  qApp->removeNativeEventFilter(this);
}

std::unique_ptr<Offer> X11Offers::clipboard() {
  return openSelection("CLIPBOARD", XCB_CURRENT_TIME);
}

std::unique_ptr<Offer> X11Offers::drop() {
  return openSelection("XdndSelection", dropTime_);
}

bool X11Offers::isOwn(std::uint32_t window) const {
  return (window & ownWindowsMask_) == ownWindows_;
}

bool X11Offers::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
  constexpr int kSource = 0;  // the index in the messages of the XDND protocol
  constexpr int kTime = 2;
  const auto& event = *static_cast<const xcb_generic_event_t*>(message);
  if (kindOf(event) != XCB_CLIENT_MESSAGE) return false;
  const auto& content = reinterpret_cast<const xcb_client_message_event_t&>(event);
  if (content.format != 32) return false;
  if (content.type == dropMessage_) dropTime_ = content.data.data32[kTime];
  return content.type == enterMessage_ && isOwn(content.data.data32[kSource]);
}

}  // namespace tavrelkin
