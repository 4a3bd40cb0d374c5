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

// A text with Qt's line breaks in place of the program's, which are "\r".
inline QString toDisplayText(const String& text) {
  return toQt(text).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

inline QColor toQt(Color c) {
  return QColor::fromRgb(c.bits);
}

// The keys of a shortcut such as "Cmd+Option+C". "Cmd" is Qt's Ctrl (the Command key where the platform has it),
// "Option" is Alt. An empty text gives no keys.
inline QKeySequence toKeySequence(const String& shortcut) {
  QString keys = toQt(shortcut);
  keys.replace(QLatin1String("Cmd"), QLatin1String("Ctrl")).replace(QLatin1String("Option"), QLatin1String("Alt"));
  return QKeySequence(keys, QKeySequence::PortableText);
}

}  // namespace tavrelkin
