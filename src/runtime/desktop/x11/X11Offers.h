#pragma once

#include <cstdint>
#include <memory>

#include <QAbstractNativeEventFilter>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// Reads what other programs offer on an X11 display, within the bounds of an Offer. The toolkit's own reading has no
// bounds: it waits up to five seconds for each form of the data, and takes any amount.
//
// Must be made while the toolkit runs on X11, and before the first drop.
class X11Offers final : public QAbstractNativeEventFilter, public OfferSource {
 public:
  X11Offers();
  ~X11Offers() override;

  std::unique_ptr<Offer> clipboard() override;
  std::unique_ptr<Offer> drop() override;

  // Remembers the timestamp of a drop. The source of the drag uses it to identify the drag. Discards each message of a
  // drag that claims to come from a window of this program. Such a message is forged, since the toolkit's own drags
  // send none. The toolkit would treat that window as another program's, and no click or key would reach it any more.
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  bool isOwn(std::uint32_t window) const;

  std::uint32_t enterMessage_ = 0;
  std::uint32_t dropMessage_ = 0;
  std::uint32_t ownWindows_ = 0;  // the bits that all windows of this program have in common
  std::uint32_t ownWindowsMask_ = 0;
  std::uint32_t dropTime_ = 0;
};

}  // namespace tavrelkin
