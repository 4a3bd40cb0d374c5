#include "runtime/desktop/native/SaveDialog.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace tavrelkin {

namespace {

QLineEdit& nameField(const QFileDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

// The plain list and the detailed one share it.
QItemSelectionModel& selection(const QFileDialog& dialog) {
  return *dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"))->selectionModel();
}

}  // namespace

// The toolkit selects in the list what the typed path names, and prefers a selected folder to the field. It undoes that
// only while the field has the focus, which the popup of the completion may take from it. A selected file even replaces
// the typed path then. So typing selects nothing here.
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

// The toolkit knows whose home "~" is, but also takes quotes for separators of names.
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

}  // namespace tavrelkin
