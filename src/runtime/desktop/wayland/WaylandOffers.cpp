#include "runtime/desktop/wayland/WaylandOffers.h"

#include <chrono>
#include <string>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QMimeData>
#include <QPointer>
#include <QVersionNumber>

#include "runtime/desktop/BoundedInput.h"

namespace QtWaylandClient {

// The beginning of a class of the toolkit that has no public header. Only startReceiving() is called.
class QWaylandAbstractDataOffer {
 public:
  // Asks the source to write the data of `type`, which it must offer, to the descriptor and then close it. The caller's
  // own copy of the descriptor stays open.
  virtual void startReceiving(const QString& type, int descriptor) = 0;
  virtual QMimeData* mimeData() = 0;
  virtual ~QWaylandAbstractDataOffer() = default;
};

// The beginning of the toolkit's class of this name, as in version 6.4. The type information is found by this name at
// run time. A final class would break that: dynamic_cast would compare with a table of virtual functions in this
// program.
class QWaylandMimeData : public QMimeData {
 public:
  QWaylandMimeData() = delete;
  QWaylandAbstractDataOffer* offer;
};

}  // namespace QtWaylandClient

namespace tavrelkin {

namespace {

using ReceivingOffer = QtWaylandClient::QWaylandAbstractDataOffer;

// The other program's offer that `data` comes from; it lives as long as `data`. Null if `data` is of another kind, or
// if the toolkit's version is not 6.4.
ReceivingOffer* receivingOfferOf(const QMimeData& data) {
  if (!QVersionNumber(6, 4).isPrefixOf(QLibraryInfo::version())) return nullptr;
  const auto* received = dynamic_cast<const QtWaylandClient::QWaylandMimeData*>(&data);
  return received ? received->offer : nullptr;
}

class WaylandOffer final : public Offer {
 public:
  WaylandOffer(const QMimeData& data, ReceivingOffer& source) : types_(data.formats()), source_(source) {}

  std::optional<std::string> bytes(const std::string& type) override {
    const QString name = QString::fromStdString(type);
    if (!types_.contains(name)) return std::nullopt;
    const auto request = [&](int writeEnd) { source_.startReceiving(name, writeEnd); };
    auto result = readThroughPipe(request, kMostBytes, end_);
    if (!result) end_ = {};
    return result;
  }

 private:
  QStringList types_;
  ReceivingOffer& source_;
  std::chrono::steady_clock::time_point end_ = std::chrono::steady_clock::now() + kPatience;
};

std::unique_ptr<Offer> offerOf(const QMimeData* data) {
  auto* source = data ? receivingOfferOf(*data) : nullptr;
  return source ? std::make_unique<WaylandOffer>(*data, *source) : nullptr;
}

class WaylandOffers final : public QObject, public OfferSource {
 public:
  WaylandOffers() { qApp->installEventFilter(this); }

  std::unique_ptr<Offer> clipboard() override { return offerOf(QGuiApplication::clipboard()->mimeData()); }
  std::unique_ptr<Offer> drop() override { return offerOf(dropped_); }

  // Only the event of a drop holds its data.
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Drop) dropped_ = static_cast<QDropEvent*>(event)->mimeData();
    return false;
  }

 private:
  QPointer<const QMimeData> dropped_;
};

}  // namespace

std::unique_ptr<OfferSource> makeWaylandOffers() {
  return std::make_unique<WaylandOffers>();
}

}  // namespace tavrelkin
