#include "app/settings/SelectFolderController.h"

#include "app/settings/ImportFileDialog.h"
#include "store/ViewMemory.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace zel {

using namespace Qt::StringLiterals;

SelectFolderController::SelectFolderController(ViewMemory* memory)
    : lastFolder(memory), folder(memory ? memory->value(rememberedFolder).toString() : QString()) {
    if (!QDir::isAbsolutePath(folder))
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    // Qt's dialogs write down which folders were chosen; some are named after patients.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

/// Looked for when it is needed: a share that does not answer is no reason for the program not to start.
void SelectFolderController::find() {
    if (!QDir(folder).exists()) folder = QDir::homePath();
}

void SelectFolderController::moveTo(const QString& chosen) {
    folder = chosen;
    if (lastFolder) lastFolder->set(rememberedFolder, folder);
}

QString SelectFolderController::chooseFolder(QWidget* owner, const QString& title) {
    find();
    // Files are shown too: the user sees what is there already.
    QString chosen = QFileDialog::getExistingDirectory(owner, title, folder, {});
    if (!chosen.isEmpty()) moveTo(chosen);
    return chosen;
}

QStringList SelectFolderController::chooseFiles(QWidget* owner, const ImportContext& context) {
    find();
    ImportFileDialog dialog(*this, folder, context, owner);
    return dialog.exec() == QDialog::Accepted ? dialog.chosenFiles() : QStringList();
}

QString SelectFolderController::choosePdf(QWidget* owner, const QString& title, const QString& name) {
    find();
    QFileDialog dialog(owner, title, folder, qtTrId("pdfFiles"));
    dialog.setOption(
        QFileDialog::DontUseNativeDialog); // a desktop's own would list the file, named after the patient
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s); // before it asks about a file that is there
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted) return {};
    QString chosen = dialog.selectedFiles().value(0);
    if (!chosen.isEmpty()) moveTo(QFileInfo(chosen).absolutePath()); // also of a path that was typed
    return chosen;
}

} // namespace zel
