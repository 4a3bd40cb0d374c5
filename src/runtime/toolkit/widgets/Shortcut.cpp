#include "runtime/toolkit/widgets/Shortcut.h"

#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

QKeySequence toKeySequence(const String& shortcut) {
  QString keys = toQt(shortcut);
  keys.replace(QLatin1String("Cmd"), QLatin1String("Ctrl")).replace(QLatin1String("Option"), QLatin1String("Alt"));
  return QKeySequence(keys, QKeySequence::PortableText);
}

}  // namespace tavrelkin
