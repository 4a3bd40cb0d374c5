#include "runtime/desktop/wayland/ReceivingOffer.h"

#include <QLibraryInfo>
#include <QMimeData>
#include <QVersionNumber>

namespace QtWaylandClient {

// The beginning of the toolkit's class of this name, as 6.4 has it. It is found by its name at run time, so it must not
// be final: the compiler would look for its own table of virtual functions instead.
class QWaylandMimeData : public QMimeData {
 public:
  QWaylandMimeData() = delete;
  QWaylandAbstractDataOffer* offer;
};

}  // namespace QtWaylandClient

namespace tavrelkin {

ReceivingOffer* receivingOfferOf(const QMimeData& data) {
  if (!QVersionNumber(6, 4).isPrefixOf(QLibraryInfo::version())) return nullptr;
  const auto* received = dynamic_cast<const QtWaylandClient::QWaylandMimeData*>(&data);
  return received ? received->offer : nullptr;
}

}  // namespace tavrelkin
