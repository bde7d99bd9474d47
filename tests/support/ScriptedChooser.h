#pragma once

#include "app/widgets/FileChooser.h"

namespace zel {

/// Picks the folder and the files that it was told, and keeps what it was asked for.
class ScriptedChooser final : public FileChooser {
public:
    QString chooseFolder(QWidget*, const QString& title) override {
        asked += title;
        return folder;
    }
    QStringList chooseFiles(QWidget*, const ImportContext& context) override {
        asked += QStringLiteral("files");
        listed = context;
        whenListed();
        return files;
    }
    QString choosePdf(QWidget*, const QString&, const QString& name) override {
        asked += name;
        return pdf;
    }

    QString folder;
    QStringList files;
    QString pdf;
    ImportContext listed; ///< what was last asked for files
    std::function<void()> whenListed = [] {};
    QStringList asked; ///< titles; "files" for files, the proposed name for a PDF
};

} // namespace zel
