#pragma once

#include <cstdint>
#include <memory>

#include <QAbstractNativeEventFilter>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// What other programs have on offer on an X11 display. The toolkit's own reading is unbounded: it waits five seconds
// for each form of the data that isn't sent, and takes in all that is. These keep to the bounds of an Offer.
//
// Made while the toolkit runs on X11; needed from before the first drop on.
class X11Offers final : public QAbstractNativeEventFilter, public OfferSource {
 public:
  X11Offers();
  ~X11Offers() override;

  std::unique_ptr<Offer> clipboard() override;
  std::unique_ptr<Offer> drop() override;

  // Notes the timestamp of a drop; the source uses it to know which of its drags is meant. Drops each message of a drag
  // that claims to come from a window of this program, since such a message is forged: the toolkit's own drags send
  // none. The toolkit would treat that window as another program's, and no click or key would reach it any more.
  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  bool isOwn(std::uint32_t window) const;

  std::uint32_t enterMessage_ = 0;
  std::uint32_t dropMessage_ = 0;
  std::uint32_t ownWindows_ = 0;  // the bits that are the same in all of them
  std::uint32_t ownWindowsMask_ = 0;
  std::uint32_t dropTime_ = 0;
};

}  // namespace tavrelkin
