#pragma once

#include "app/widgets/FileChooser.h"

#include <QDialog>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace zel {

class EmptyState;
class XmlFileList;

/// Lists the XML files of a folder with what is in them, for the user to choose those to import.
class ImportFileDialog final : public QDialog {
    Q_OBJECT
public:
    /// \p folders is asked when the user wants another folder than \p folder.
    ImportFileDialog(FileChooser& folders, const QString& folder, const ImportContext& context,
                     QWidget* parent);

    [[nodiscard]] QStringList chosenFiles() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void build();
    QHBoxLayout* makeFolderRow();
    QWidget* makeButtons();
    void dressList();
    void chooseFolder();
    void setFolder(const QString& path);
    void setFiles(const ImportContext& context);
    void beginList();
    void showFolder();
    void showChosen();

    FileChooser& folders;
    QString folder;
    XmlFileList* files;
    QLabel* lblFolder;
    QLabel* lblRemark;
    QPushButton* btnFolder;
    QTableView* tblFiles;
    EmptyState* noFiles;
    QStackedWidget* listOrAdvice;
    QCheckBox* boxAll;
    QPushButton* btnImport;
    QPushButton* btnCancel;
};

} // namespace zel
