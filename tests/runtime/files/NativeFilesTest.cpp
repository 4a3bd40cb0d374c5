// The machine's own save dialog, driven by hand as far as the offscreen platform allows, and the folder for data.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

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
    qputenv("HOME", QByteArray::fromStdString(home.path("")));
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(home.path("config")));
  }

  const TemporaryFolder home;
  const std::unique_ptr<Desktop> desktop = makeNativeDesktop();
};

// Types a name and saves, refuses to overwrite where asked, and gives up then.
struct User {
  explicit User(QString typed) : name(std::move(typed)) { plan(); }

  // The next act is planned first, since a question comes, and has to be answered, within the click that raises it.
  void plan() {
    QTimer::singleShot(0, &hand, [this] {
      plan();
      act();
    });
  }

  void act() {
    auto* const front = QApplication::activeModalWidget();
    if (auto* const question = qobject_cast<QMessageBox*>(front)) return question->button(QMessageBox::No)->click();
    auto* const dialog = qobject_cast<QFileDialog*>(front);
    if (!dialog) return;
    if (!begunWith.isNull()) return dialog->reject();
    auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    begunWith = line->text();
    line->setText(name);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  }

  QString name;
  QString begunWith;
  QObject hand;
};

TEST_F(NativeFilesTest, TheSaveDialogAsksBeforeItOverwritesAndAddsNothing) {
  home.write("old", "");
  for (const auto& [typed, accepted] : {std::pair{"new.aco.txt", true}, {"old", false}}) {
    const std::string path = home.path(typed);
    const User user(QString::fromStdString(path));
    const auto chosen = desktop->chooseSaveFile("Swatches (*.aco)", "Untitled.aco");
    EXPECT_EQ(user.begunWith, "Untitled.aco");
    EXPECT_EQ(chosen, accepted ? std::optional(path) : std::nullopt) << typed;
  }
}

TEST_F(NativeFilesTest, DataGoesBelowXdgDataHomeOrItsDefault) {
  for (const auto& [dataHome, folder] : {std::pair{home.path("deep/data"), home.path("deep/data/tavrelkin")},
                                         {"", home.path(".local/share/tavrelkin")},
                                         {"relative", home.path(".local/share/tavrelkin")}}) {
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(dataHome));
    EXPECT_EQ(desktop->applicationDataFolder(), folder);
    EXPECT_TRUE(std::filesystem::is_directory(folder));
  }
}

}  // namespace
}  // namespace tavrelkin
