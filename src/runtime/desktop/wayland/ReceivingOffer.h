#pragma once

#include <QString>

class QMimeData;

namespace QtWaylandClient {

// The toolkit's class of this name, which has no public header: the first of its functions is all that is used.
class QWaylandAbstractDataOffer {
 public:
  // Asks for the data under a type that is on offer. The source is to write them to the descriptor and then close it;
  // the caller's own copy stays open.
  virtual void startReceiving(const QString& type, int descriptor) = 0;
  virtual QMimeData* mimeData() = 0;
  virtual ~QWaylandAbstractDataOffer() = default;
};

}  // namespace QtWaylandClient

namespace tavrelkin {

using ReceivingOffer = QtWaylandClient::QWaylandAbstractDataOffer;

// The offer of another Wayland program from which these data come; it lives as long as they do. Null for data of
// another kind, and where the toolkit is of a version whose private classes are not known.
ReceivingOffer* receivingOfferOf(const QMimeData& data);

}  // namespace tavrelkin
