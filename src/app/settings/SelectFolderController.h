#pragma once

#include "app/widgets/FileChooser.h"

namespace zel {

class ViewMemory;

/// The chooser of the data commands and the report: the platform's own dialogs for a folder and for a file to
/// write, and the program's own list of a folder's XML files for files. Begins where the user was last.
class SelectFolderController final : public FileChooser {
public:
    /// \p memory: of the last folder, for the next start; it outlives this.
    explicit SelectFolderController(ViewMemory* memory = nullptr);
    [[nodiscard]] QString chooseFolder(QWidget* owner, const QString& title) override;
    [[nodiscard]] QStringList chooseFiles(QWidget* owner, const ImportContext& context) override;
    [[nodiscard]] QString choosePdf(QWidget* owner, const QString& title, const QString& name) override;

private:
    void moveTo(const QString& chosen);
    void find();

    ViewMemory* lastFolder;
    QString folder;
};

} // namespace zel
