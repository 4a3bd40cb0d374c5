#include "runtime/desktop/native/Dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QMessageBox>
#include <QPointer>

#include "runtime/desktop/native/SaveDialog.h"

namespace tavrelkin {

namespace {

// activeWindow() may still be a dialog that is closing; a child of it would be closed too.
QWidget* frontWindow() {
  QWidget* window = QApplication::activeWindow();
  while (window && !window->isVisible())
    window = window->parentWidget();
  return window;
}

// Shows a dialog until the user closes it, and gives whether they accept. It is of use then until the event loop runs
// again. The window underneath can be closed meanwhile, which takes the dialog with it: that counts as giving up.
template <class Dialog>
bool run(const QPointer<Dialog>& dialog) {
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (dialog) dialog->deleteLater();
  return accepted && dialog;
}

}  // namespace

// Each dialog reads and writes the toolkit's settings by an object of its own. All objects share their values in memory
// while one of them lives, and no file can be made at this path.
Dialogs::Dialogs() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
  memory_.emplace(QSettings::UserScope, QStringLiteral("QtProject"));
}

void Dialogs::message(const std::string& text) {
  const QPointer<QMessageBox> box(new QMessageBox(frontWindow()));
  box->setWindowTitle("Tavrelkin");
  box->setTextFormat(Qt::PlainText);
  box->setText(QString::fromStdString(text));
  box->setStandardButtons(QMessageBox::Ok);
  run(box);
}

std::optional<std::uint32_t> Dialogs::color(std::uint32_t initial, const std::string& prompt) {
  const QPointer<QColorDialog> dialog(new QColorDialog(QColor::fromRgb(initial), frontWindow()));
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  dialog->setWindowTitle(QString::fromStdString(prompt));
  if (!run(dialog)) return std::nullopt;
  return dialog->selectedColor().rgb() & 0xFFFFFF;
}

std::optional<std::string> Dialogs::saveFile(const std::string& filter, const std::string& name) {
  const QPointer<SaveDialog> dialog(
      new SaveDialog(frontWindow(), QString::fromStdString(filter), QString::fromStdString(name)));
  if (!run(dialog)) return std::nullopt;
  return QFile::encodeName(dialog->chosenPath()).toStdString();
}

}  // namespace tavrelkin
