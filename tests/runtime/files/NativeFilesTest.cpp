// The machine's own save dialog, driven by hand as far as the offscreen platform allows, and the folder for data.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "runtime/desktop/native/NativeDesktop.h"
#include "support/TemporaryFolder.h"

namespace tavrelkin {
namespace {

// The dialog keeps its settings and the desktop its data in the user's folders, here temporary ones.
class NativeFilesTest : public ::testing::Test {
 protected:
  NativeFilesTest() {
    set("HOME", home.path(""));
    set("XDG_CONFIG_HOME", home.path("config"));
  }
  ~NativeFilesTest() override {
    for (; !before.empty(); before.pop_back())
      qputenv(before.back().first, before.back().second);
  }
  void set(const char* name, const std::string& value) {
    before.emplace_back(name, qgetenv(name));
    qputenv(name, QByteArray::fromStdString(value));
  }

  const TemporaryFolder home;
  std::vector<std::pair<const char*, QByteArray>> before;
  const std::unique_ptr<Desktop> desktop = makeNativeDesktop();
};

// Types a name and saves, answers the question if there is one, and gives up if the dialog stays.
class User {
 public:
  User(QString name, QMessageBox::StandardButton answer) : name_(std::move(name)), answer_(answer) { plan(); }
  std::string begunWith;
  int questions = 0;

 private:
  // The next act is planned first, since a question comes, and has to be answered, within the click that raises it.
  void plan() {
    QTimer::singleShot(0, &hand_, [this] {
      plan();
      act();
    });
  }

  void act() {
    if (auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      ++questions;
      question->button(answer_)->click();
      return;
    }
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    if (saved_) return dialog->reject();
    saved_ = true;
    auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    begunWith = line->text().toStdString();
    line->setText(name_);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  }

  QString name_;
  QMessageBox::StandardButton answer_;
  bool saved_ = false;
  QObject hand_;
};

TEST_F(NativeFilesTest, TheSaveDialogAsksBeforeItOverwritesAndAddsNothing) {
  home.write("old", "");
  const struct {
    std::string typed;
    QMessageBox::StandardButton answer;
    int questions;
    bool accepted;
  } rows[] = {
      {"new.aco.txt", QMessageBox::No, 0, true},
      {"old", QMessageBox::Yes, 1, true},
      {"old", QMessageBox::No, 1, false},
  };
  for (const auto& row : rows) {
    const std::string path = home.path(row.typed);
    const User user(QString::fromStdString(path), row.answer);
    const auto chosen = desktop->chooseSaveFile("Swatches (*.aco)", "Untitled.aco");
    EXPECT_EQ(user.begunWith, "Untitled.aco");
    EXPECT_EQ(user.questions, row.questions) << row.typed;
    EXPECT_EQ(chosen, row.accepted ? std::optional(path) : std::nullopt) << row.typed;
  }
}

TEST_F(NativeFilesTest, DataGoesBelowXdgDataHomeOrItsDefault) {
  const struct {
    std::string dataHome, folder;
  } rows[] = {
      {home.path("deep/data"), home.path("deep/data/tavrelkin")},
      {"", home.path(".local/share/tavrelkin")},
      {"relative", home.path(".local/share/tavrelkin")},
  };
  for (const auto& row : rows) {
    set("XDG_DATA_HOME", row.dataHome);
    EXPECT_EQ(desktop->applicationDataFolder(), row.folder);
    EXPECT_TRUE(std::filesystem::is_directory(row.folder));
  }
}

}  // namespace
}  // namespace tavrelkin
