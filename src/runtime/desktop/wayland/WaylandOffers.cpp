#include "runtime/desktop/wayland/WaylandOffers.h"

#include <chrono>
#include <string>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>

#include "runtime/desktop/BoundedInput.h"
#include "runtime/desktop/wayland/ReceivingOffer.h"

namespace tavrelkin {

namespace {

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

  // The data of a drop come with its event only.
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
