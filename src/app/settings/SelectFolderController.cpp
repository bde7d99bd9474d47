#include "app/settings/SelectFolderController.h"

#include "app/settings/ImportFileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QSettings>
#include <QStandardPaths>

namespace zel {

using namespace Qt::StringLiterals;

SelectFolderController::SelectFolderController()
    : folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)) {
    // Qt's dialogs write down which folders were chosen; some are named after patients.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

QString SelectFolderController::chooseFolder(QWidget* owner, const QString& title) {
    if (!QDir(folder).exists()) folder = QDir::homePath();
    // Files are shown too: the user sees what is there already.
    QString chosen = QFileDialog::getExistingDirectory(owner, title, folder, {});
    if (!chosen.isEmpty()) folder = chosen;
    return chosen;
}

QStringList SelectFolderController::chooseFiles(QWidget* owner, const ImportContext& context) {
    if (!QDir(folder).exists()) folder = QDir::homePath();
    ImportFileDialog dialog(*this, folder, context, owner);
    return dialog.exec() == QDialog::Accepted ? dialog.chosenFiles() : QStringList();
}

QString SelectFolderController::choosePdf(QWidget* owner, const QString& title, const QString& name) {
    if (!QDir(folder).exists()) folder = QDir::homePath();
    QFileDialog dialog(owner, title, folder, qtTrId("pdfFiles"));
    dialog.setOption(
        QFileDialog::DontUseNativeDialog); // a desktop's own would list the file, named after the patient
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s); // before it asks about a file that is there
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted) return {};
    folder = dialog.directory().absolutePath();
    return dialog.selectedFiles().value(0);
}

} // namespace zel
