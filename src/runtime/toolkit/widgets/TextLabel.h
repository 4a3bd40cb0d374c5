#pragma once

#include <QFont>
#include <QWidget>

#include "runtime/toolkit/StaticText.h"

namespace tavrelkin {

// The widget of a StaticText. Its lines have the same pitch in every font family, since other controls are placed
// beside them. A change of the text is announced to assistive technologies when no more follow for a moment. Qt's own
// label would announce each of the many changes while the program follows the pointer.
class TextLabel : public QWidget {
 public:
  const QString& text() const { return text_; }
  void setLines(const QString& lines);
  void setBaseFont(const QFont& font);
  void setTextColor(const QColor& c);
  void align(TextAlignment where);

  // Condenses the text to the width of the label. To be called after a change of size.
  void fit();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  Qt::Alignment across_ = Qt::AlignLeft;
  QFont base_;
};

}  // namespace tavrelkin
