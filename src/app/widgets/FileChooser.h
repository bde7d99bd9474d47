#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace zel {

/// What a list of files to import says of them, beside what is in them.
struct ImportContext {
    std::function<bool(const QString& ID)> isKnown = [](const QString&) { return false; };
    QString dateFormat = QStringLiteral("yyyy/MM/dd"); ///< as SettingModel::shownDateFormat()
    QStringList files{}; ///< listed instead of a folder's, and chosen as XmlFileList::setFiles() does
    QString remark{};    ///< for the user, about these files
};

/// How the user picks the folder of an export, the files of an import and the file of a report. The window
/// shows dialogs, tests script the answers.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    /// \return the folder's path; empty when the user chose none
    [[nodiscard]] virtual QString chooseFolder(QWidget* owner, const QString& title) = 0;
    /// \return the full paths of patients' XML files; empty when the user chose none
    [[nodiscard]] virtual QStringList chooseFiles(QWidget* owner, const ImportContext& context) = 0;
    /// \p name is proposed. The user has agreed to the replacement of a file that is there.
    /// \return the full path of the PDF to write; empty when the user chose none
    [[nodiscard]] virtual QString choosePdf(QWidget* owner, const QString& title, const QString& name) = 0;
};

} // namespace zel
