#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

// What a user does in the toolkit's save dialog.
namespace tavrelkin::dialog {

inline QLineEdit& fieldOf(const QFileDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

using Act = std::function<void(const QFileDialog&)>;

inline Act type(const std::string& text) {
  return [text](const QFileDialog& dialog) {
    fieldOf(dialog).selectAll();
    fieldOf(dialog).insert(QString::fromStdString(text));
  };
}

inline Act select(const std::string& path) {
  return [path](const QFileDialog& dialog) {
    const auto* const list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    const QModelIndex item = qobject_cast<QFileSystemModel*>(list->model())->index(QString::fromStdString(path));
    list->selectionModel()->setCurrentIndex(item, QItemSelectionModel::Select | QItemSelectionModel::Rows);
  };
}

inline void save(const QFileDialog& dialog) {
  dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
}

// A user of the save dialog: performs the acts in order, answers each question with no, and cancels the dialog at the
// end.
struct User {
  explicit User(std::vector<Act> steps) : acts(std::move(steps)) { plan(); }

  // Plans the next act first: an act that raises a question returns only after the next act has answered it.
  void plan() {
    QTimer::singleShot(0, &hand, [this] {
      plan();
      act();
    });
  }

  void act() {
    auto* const front = QApplication::activeModalWidget();
    if (auto* const question = qobject_cast<QMessageBox*>(front)) {
      ++questions;
      return question->reject();
    }
    auto* const dialog = qobject_cast<QFileDialog*>(front);
    if (!dialog) return;
    if (next == 0) begunWith = fieldOf(*dialog).text().toStdString();
    if (next == acts.size()) return dialog->reject();
    acts[next++](*dialog);
  }

  std::vector<Act> acts;
  std::size_t next = 0;
  std::string begunWith;
  int questions = 0;
  QObject hand;
};

}  // namespace tavrelkin::dialog
