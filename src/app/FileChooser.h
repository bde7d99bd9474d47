#pragma once

#include <QStringList>
#include <QWidget>

namespace zel {

/// How the user picks the folder of an export and the files of an import. The window shows dialogs, tests
/// script the answers.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// \return the folder's path; empty when the user chose none
    [[nodiscard]] virtual QString chooseFolder(QWidget* owner, const QString& title) = 0;
    /// \return the full paths of patients' XML files; empty when the user chose none
    [[nodiscard]] virtual QStringList chooseFiles(QWidget* owner) = 0;
};

} // namespace zel
