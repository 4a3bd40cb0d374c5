#include "runtime/desktop/Offer.h"

#include <QString>

namespace tavrelkin {

// The types that name their encoding come first.
std::optional<std::string> Offer::text() {
  for (const char* type : {"UTF8_STRING", "text/plain;charset=utf-8"})
    if (const auto utf8 = bytes(type)) return QString::fromUtf8(QByteArray::fromStdString(*utf8)).toStdString();
  if (const auto latin1 = bytes("STRING")) return QString::fromLatin1(QByteArray::fromStdString(*latin1)).toStdString();
  if (const auto local = bytes("text/plain")) return QString::fromUtf8(QByteArray::fromStdString(*local)).toStdString();
  return std::nullopt;
}

}  // namespace tavrelkin
