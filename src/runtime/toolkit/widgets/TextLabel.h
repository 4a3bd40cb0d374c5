#pragma once

#include <QFont>
#include <QWidget>

#include "runtime/toolkit/StaticText.h"

namespace tavrelkin {

// A label whose single line stands in the middle of its height. It sets its text narrower where it would be cut off.
// Its lines have the same pitch in every family of fonts, since other controls stand beside them. Assistive
// technologies hear of another text when it has come to rest; the toolkit's own label would tell each of those of a
// followed pointer.
class TextLabel : public QWidget {
 public:
  const QString& text() const { return text_; }
  void setLines(const QString& lines);
  void setBaseFont(const QFont& font);
  void setTextColor(const QColor& c);
  void align(TextAlignment where);

  // To be called after a change of size.
  void fit();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  Qt::Alignment across_ = Qt::AlignLeft;
  QFont base_;
};

}  // namespace tavrelkin
