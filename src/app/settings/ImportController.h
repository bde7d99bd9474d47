#pragma once

#include "app/widgets/FileChooser.h"
#include "app/widgets/StepProgress.h"
#include "store/DataStore.h"
#include "store/FileImport.h"

#include <QObject>

#include <utility>
#include <vector>

namespace zel {

/// How an import of several files ended.
struct ImportOutcome {
    std::vector<std::pair<QString, ImportCounts>> taken{}; ///< the file's name and what was in it
    std::vector<ImportRefusal> refused{};
    int notReached = 0; ///< files that were left when the user cancelled
};

/// The outcome for the user: which files were taken, and why the others were not.
[[nodiscard]] QString describe(const ImportOutcome& outcome);

/// Brings patients in from files that the user chooses, and says in one message how it went.
class ImportController final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        FileChooser& chooser;
    };
    /// \p window is what the dialogs stand over.
    ImportController(const Parts& needed, QWidget* window);

    void importFiles();
    /// Those of the files that the user wants. \p remark: for the user, about them
    void importAmong(const QStringList& files, const QString& remark);

signals:
    void imported(); ///< the data file holds new patients; emitted once for all files

private:
    [[nodiscard]] ImportContext context() const;
    void importAll(const QStringList& paths);
    void tell(const ImportedFile& file);
    void finish(int notReached);

    Parts parts;
    QWidget* window;
    StepProgress* progress;
    FileImport files{parts.store};
    ImportOutcome outcome;
};

} // namespace zel
