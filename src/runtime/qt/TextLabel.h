#pragma once

#include <QFont>
#include <QLabel>

#include "runtime/gui/StaticText.h"

namespace tavrelkin {

// A label whose single line stands in the middle of its height. It sets its text narrower where it would be cut off.
// Its lines have the same pitch in every family of fonts, since other controls stand beside them.
class TextLabel : public QLabel {
 public:
  TextLabel();

  void setLines(const QString& lines);
  void setBaseFont(const QFont& font);
  void setTextColor(const QColor& c);
  void align(TextAlignment where);

  // To be called after a change of size.
  void fit();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont base_;
};

}  // namespace tavrelkin
