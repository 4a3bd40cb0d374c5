#include "runtime/toolkit/widgets/Drags.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include <QColor>
#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "runtime/core/drawing/Color.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

namespace {

constexpr auto kPrivatePrefix = "application/x-tavrelkin-";
constexpr auto kDesktopColor = "application/x-color";
constexpr auto kPlainText = "text/plain;charset=utf-8";  // a type that Qt doesn't recognise as text

String payloadOf(const QColor& c) {
  return colorDataOf(RGB(c.red(), c.green(), c.blue()));
}

// The data of a drag, by type. This base class is for a drag whose data can't be read yet: each type holds an empty
// text.
struct Content {
  Content() = default;
  Content(const Content&) = delete;
  Content& operator=(const Content&) = delete;
  virtual ~Content() = default;
  virtual std::optional<String> bytes(const QString&) const { return String(); }
  virtual std::optional<String> color() const { return String(); }
  virtual std::optional<String> text() const { return String(); }
};

// The data that Qt holds: of a drag or clipboard of this program, and where no Offer exists.
struct Held final : Content {
  explicit Held(const QMimeData& from) : data(from) {}
  std::optional<String> bytes(const QString& type) const override { return data.data(type).toStdString(); }
  std::optional<String> color() const override {
    const auto c = qvariant_cast<QColor>(data.colorData());
    return c.isValid() ? std::optional(payloadOf(c)) : std::nullopt;
  }
  std::optional<String> text() const override {
    return fromQt(data.hasText() ? data.text() : QString::fromUtf8(data.data(kPlainText)));
  }
  const QMimeData& data;
};

// The data that another program sends. Each read asks that program.
struct Sent final : Content {
  explicit Sent(Offer& from) : offer(from) {}
  std::optional<String> bytes(const QString& type) const override { return offer.bytes(fromQt(type)); }
  // The type "application/x-color": red, green, blue and opacity of 16 bits each, in the byte order of this machine.
  std::optional<String> color() const override {
    std::array<std::uint16_t, 4> channels;
    const auto sent = offer.bytes(kDesktopColor);
    if (!sent || sent->size() != sizeof channels) return std::nullopt;
    std::memcpy(channels.data(), sent->data(), sizeof channels);
    return payloadOf(QColor::fromRgba64(channels[0], channels[1], channels[2], channels[3]));
  }
  std::optional<String> text() const override { return offer.text(); }
  Offer& offer;
};

// Reads only the types that are needed, since each read may have to wait for another program.
Ref<DragItem> itemOf(const QMimeData& types, const Content& content) {
  Ref<DragItem> item = New<DragItem>();
  const QString prefix = QLatin1String(kPrivatePrefix);
  for (const QString& format : types.formats()) {
    if (!format.startsWith(prefix)) continue;
    if (auto payload = content.bytes(format)) item->MacData(fromQt(format.mid(prefix.size())), *std::move(payload));
  }
  if (!item->MacDataAvailable(kColorData) && types.hasColor())
    if (auto color = content.color()) item->MacData(kColorData, *std::move(color));
  if (!types.hasUrls() && (types.hasText() || types.hasFormat(kPlainText)))
    if (auto text = content.text()) item->SetText(*std::move(text));
  return item;
}

// A white rectangle inside a black one, so that the outline is visible on any background.
QPixmap outlineOf(const QSize& size) {
  QPixmap picture(size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setPen(Qt::black);
  painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
  painter.setPen(Qt::white);
  painter.drawRect(1, 1, size.width() - 3, size.height() - 3);
  return picture;
}

}  // namespace

std::unique_ptr<QMimeData> toMime(const DragItem& item) {
  auto data = std::make_unique<QMimeData>();
  for (const String& type : item.MacDataTypes()) {
    data->setData(QLatin1String(kPrivatePrefix) + toQt(type), QByteArray::fromStdString(item.MacData(type)));
  }
  if (item.MacDataAvailable(kColorData)) data->setColorData(toQt(colorOfData(item.MacData(kColorData))));
  if (item.TextAvailable()) data->setText(toQt(item.Text()));
  return data;
}

Ref<DragItem> fromMime(const QMimeData& data) {
  return itemOf(data, Held(data));
}

Ref<DragItem> offeredBy(const QMimeData& data) {
  return itemOf(data, Content());
}

Ref<DragItem> fromDrop(const QDropEvent& event) {
  const bool isOwn = event.source() != nullptr;
  const auto offer = isOwn ? nullptr : desktop().dropOffer();
  return offer ? itemOf(*event.mimeData(), Sent(*offer)) : fromMime(*event.mimeData());
}

// The parent of the drag is the application, since the window may be closed before the user releases the button.
void beginDrag(const DragItem& item, QWidget& content, const QRect& outline) {
  auto* drag = new QDrag(QCoreApplication::instance());
  drag->setMimeData(toMime(item).release());
  drag->setPixmap(outlineOf(outline.size()));
  drag->setHotSpot(content.mapFromGlobal(QCursor::pos()) - outline.topLeft());
  drag->exec(Qt::CopyAction);
}

}  // namespace tavrelkin
