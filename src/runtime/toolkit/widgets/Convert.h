#pragma once

#include <QColor>
#include <QKeySequence>
#include <QString>

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

inline QString toQt(const String& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline String fromQt(const QString& text) {
  return text.toStdString();
}

// A text of several lines as the toolkit shows it; the program's own mark for a new line is "\r".
inline QString toDisplayText(const String& text) {
  return toQt(text).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

inline QColor toQt(Color c) {
  return QColor::fromRgb(c.bits);
}

// The keys that a text such as "Cmd+Option+C" names on this platform. "Cmd" is the command key, which is Control where
// there is no such key, and "Option" is Alt. An empty text gives no keys.
inline QKeySequence toKeySequence(const String& shortcut) {
  QString keys = toQt(shortcut);
  keys.replace(QLatin1String("Cmd"), QLatin1String("Ctrl")).replace(QLatin1String("Option"), QLatin1String("Alt"));
  return QKeySequence(keys, QKeySequence::PortableText);
}

}  // namespace tavrelkin
