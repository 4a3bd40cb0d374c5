#include "runtime/toolkit/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "runtime/desktop/Desktop.h"
#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

String Clipboard::Text() const {
  if (const auto offer = desktop().clipboardOffer()) return offer->text().value_or(String());
  return fromQt(QGuiApplication::clipboard()->text());
}

void Clipboard::SetText(const String& text) {
  QGuiApplication::clipboard()->setText(toQt(text));
}

}  // namespace tavrelkin
