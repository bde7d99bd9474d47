#pragma once

#include "analysis/MeasuringWeek.h"
#include "app/widgets/FileChooser.h"
#include "app/widgets/StepProgress.h"
#include "store/DataStore.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace zel {

/// How an export ended.
struct ExportOutcome {
    QString folder;
    int written = 0;
    int kept = 0; ///< files that were there already and that the user did not want replaced
    bool cancelled = false;
    std::vector<StoreError> failures{};
};

/// The outcome for the user: how many files went where, and which did not and why.
[[nodiscard]] QString describe(const ExportOutcome& outcome);

/// Takes patients out of the program as files: asks where to, asks once before any file is replaced, and says
/// in one message how it went.
class ExportController final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        FileChooser& chooser;
        /// Settles what is typed and not saved. \return false if nothing is to be exported
        std::function<bool()> isReady = [] { return true; };
    };
    /// \p window is what the dialogs stand over.
    ExportController(const Parts& needed, QWidget* window);

    /// Every patient, as one XML file each.
    void exportFiles();
    /// The current patient, as a CSV file.
    void exportCSV();
    /// The current patient, as a bundle for other programs' health records; \p rule: of the average.
    void exportFhir(AverageRule rule);

private:
    /// A file to be written.
    struct Target {
        QString ID;
        bool isThere = false; ///< a file of its name was there before
    };
    using Writer = std::function<StoreResult(const QString& ID, Replace replace)>;
    /// Makes sure that what was written is on disk.
    using Finisher = std::function<StoreResult()>;
    void write(const QStringList& IDs, const QString& extension, const Writer& writer,
               const Finisher& finish);
    [[nodiscard]] bool askToReplace(const QStringList& names) const;
    void writeOne(const Target& target, bool mayReplace, const Writer& writer);

    Parts parts;
    QWidget* window;
    StepProgress* progress;
    ExportOutcome outcome;
};

} // namespace zel
