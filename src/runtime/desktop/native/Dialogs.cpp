#include "runtime/desktop/native/Dialogs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace tavrelkin {

namespace {

// activeWindow() may still be a dialog that is closing; a child of it would be closed too.
QWidget* frontWindow() {
  QWidget* window = QApplication::activeWindow();
  while (window && !window->isVisible())
    window = window->parentWidget();
  return window;
}

// Shows a dialog, and returns true if the user accepts it. The dialog may be used after that until the event loop runs
// again. The window under the dialog may be closed meanwhile, which destroys the dialog; this counts as cancelling.
template <class Dialog>
bool run(const QPointer<Dialog>& dialog) {
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (dialog) dialog->deleteLater();
  return accepted && dialog;
}

// The toolkit's own dialog for the path of a new file. Saving uses exactly the text in the field for the name, however
// fast it was typed. A relative path starts at the folder on display, and "~" means the home folder.
//
// If the path is a folder, typed or selected in the list, the dialog enters it. The dialog asks before it accepts an
// existing file, and shows a message if the folder of the path does not exist.
class SaveDialog final : public QFileDialog {
 public:
  // An empty filter shows all files. The dialog proposes `name` in each folder.
  SaveDialog(QWidget* parent, const QString& filter, const QString& name);

  // The absolute path that the user accepted, or an empty string.
  const QString& chosenPath() const { return chosenPath_; }

 protected:
  void accept() override;

 private:
  bool folderIsSelected() const;
  QString typedPath() const;
  void enter(const QString& folder);
  bool mayReplace(const QString& name);

  const QString name_;
  QString chosenPath_;
};

QLineEdit& nameField(const QFileDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

// Both views of the list share one selection.
QItemSelectionModel& selection(const QFileDialog& dialog) {
  return *dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"))->selectionModel();
}

// The toolkit's dialog selects the file in the list that the typed path names, and prefers a selected folder to the
// field. It clears the selection only while the field has the focus, but the popup of the completer may have the focus
// instead. Then a selected file even replaces the typed path. So in this dialog, typing never selects a file and always
// clears the selection.
SaveDialog::SaveDialog(QWidget* parent, const QString& filter, const QString& name) : QFileDialog(parent), name_(name) {
  setOption(DontUseNativeDialog);
  setAcceptMode(AcceptSave);
  if (!filter.isEmpty()) setNameFilter(filter);
  selectFile(name);
  const QLineEdit* const field = &nameField(*this);
  auto* const save = findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
  disconnect(field, &QLineEdit::textChanged, this, nullptr);
  connect(field, &QLineEdit::textEdited, this, [this] { selection(*this).clear(); });
  connect(field, &QLineEdit::textChanged, save, [save](const QString& text) { save->setEnabled(!text.isEmpty()); });
}

void SaveDialog::accept() {
  nameField(*this).completer()->popup()->hide();
  if (folderIsSelected()) return QFileDialog::accept();
  const QString path = typedPath();
  const QFileInfo file(path);
  if (path.isEmpty()) return;
  if (file.isDir()) return enter(path);
  if (!file.dir().exists()) {
    const QString text = QStringLiteral("There is no folder \"%1\".").arg(file.path());
    return void(QMessageBox::warning(this, windowTitle(), text));
  }
  if (file.exists() && !mayReplace(file.fileName())) return;
  chosenPath_ = path;
  done(Accepted);
}

bool SaveDialog::folderIsSelected() const {
  const QModelIndexList selected = selection(*this).selectedRows();
  return !selected.empty() && QFileInfo(selected[0].data(QFileSystemModel::FilePathRole).toString()).isDir();
}

// The toolkit resolves "~" and "~user". This function resolves all other texts itself, because the toolkit takes quotes
// for separators between file names.
QString SaveDialog::typedPath() const {
  const QString text = nameField(*this).text();
  if (text.isEmpty()) return {};
  if (!text.startsWith('~')) return directory().absoluteFilePath(text);
  selection(*this).clear();
  return selectedFiles().constFirst();
}

void SaveDialog::enter(const QString& folder) {
  setDirectory(folder);
  nameField(*this).setText(name_);
  nameField(*this).selectAll();
}

bool SaveDialog::mayReplace(const QString& name) {
  const QString question = QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(name);
  return QMessageBox::warning(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

}  // namespace

// Each dialog reads and writes the toolkit's settings with its own QSettings object. All such objects share their
// values in memory while one of them lives, and no file can be made at this path.
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
