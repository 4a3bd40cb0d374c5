#include "runtime/gui/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "runtime/qt/Convert.h"

namespace tavrelkin {

String Clipboard::Text() const {
  return fromQt(QGuiApplication::clipboard()->text());
}

void Clipboard::SetText(const String& text) {
  QGuiApplication::clipboard()->setText(toQt(text));
}

}  // namespace tavrelkin
