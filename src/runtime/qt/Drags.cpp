#include "runtime/qt/Drags.h"

#include <QColor>
#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "runtime/drawing/Color.h"
#include "runtime/qt/Convert.h"

namespace tavrelkin {

namespace {

constexpr auto kColourType = "hcol";
constexpr auto kPrivatePrefix = "application/x-tavrelkin-";
constexpr auto kPlainText = "text/plain;charset=utf-8";  // what the toolkit doesn't know as text by itself

QColor toColor(const String& triple) {
  const auto channel = [&triple](Int32 n) { return toInt32(Val(NthField(triple, ",", n))); };
  return toQt(RGB(channel(1), channel(2), channel(3)));
}

String toTriple(const QColor& c) {
  return Str(c.red()) + ", " + Str(c.green()) + ", " + Str(c.blue());
}

// White around black, so that it can be seen on any ground.
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
  if (item.MacDataAvailable(kColourType)) data->setColorData(toColor(item.MacData(kColourType)));
  if (item.TextAvailable()) data->setText(toQt(item.Text()));
  return data;
}

Ref<DragItem> fromMime(const QMimeData& data) {
  Ref<DragItem> item = New<DragItem>();
  const QString prefix = QLatin1String(kPrivatePrefix);
  for (const QString& format : data.formats()) {
    if (format.startsWith(prefix)) item->MacData(fromQt(format.mid(prefix.size())), data.data(format).toStdString());
  }
  if (!item->MacDataAvailable(kColourType) && data.hasColor()) {
    const auto c = qvariant_cast<QColor>(data.colorData());
    if (c.isValid()) item->MacData(kColourType, toTriple(c));
  }
  if (data.hasText()) {
    item->SetText(fromQt(data.text()));
  } else if (data.hasFormat(kPlainText)) {
    item->SetText(fromQt(QString::fromUtf8(data.data(kPlainText))));
  }
  return item;
}

// The drag belongs to the program, not to the window, which may be closed before the user lets go.
void beginDrag(const DragItem& item, QWidget& content, const QRect& outline) {
  auto* drag = new QDrag(QCoreApplication::instance());
  drag->setMimeData(toMime(item).release());
  drag->setPixmap(outlineOf(outline.size()));
  drag->setHotSpot(content.mapFromGlobal(QCursor::pos()) - outline.topLeft());
  drag->exec(Qt::CopyAction);
}

}  // namespace tavrelkin
