#pragma once

#include <QFileDialog>
#include <QString>

namespace tavrelkin {

// The toolkit's own dialog for the place of a new file. What stands in the field for the name when the user saves is
// the path, however fast it was typed. A relative path counts from the folder on display, and "~" means the home
// folder.
//
// A folder, typed or selected in the list, is entered. The dialog asks before it accepts an existing file, and says so
// where the folder of the path does not exist.
class SaveDialog : public QFileDialog {
 public:
  // An empty filter shows all files. `name` is the proposal, in each folder.
  SaveDialog(QWidget* parent, const QString& filter, const QString& name);

  // The absolute path that the user accepted, or an empty text.
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

}  // namespace tavrelkin
