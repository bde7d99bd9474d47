#pragma once

#include "app/FileChooser.h"

namespace zel {

/// The chooser of the data commands: the platform's own dialog for a folder, and the program's own list of a
/// folder's XML files for files. Begins where the user was last.
class SelectFolderController final : public FileChooser {
public:
    SelectFolderController();
    [[nodiscard]] QString chooseFolder(QWidget* owner, const QString& title) override;
    [[nodiscard]] QStringList chooseFiles(QWidget* owner) override;

private:
    QString folder;
};

} // namespace zel
