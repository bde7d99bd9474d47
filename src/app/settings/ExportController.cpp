#include "app/settings/ExportController.h"

#include "app/widgets/PatientTexts.h"
#include "fhir/FhirExport.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString fileName(const QString& path) { return QFileInfo(path).fileName(); }

/// What failed for one and the same reason is told once, with the names of all that it befell.
QStringList failureTexts(const std::vector<StoreError>& failures) {
    QMap<std::pair<StoreErrorCode, QString>, std::vector<const StoreError*>> byReason;
    for (const StoreError& error : failures)
        byReason[{error.code, error.detail}].push_back(&error);
    QStringList texts;
    for (const auto& alike : byReason) {
        QStringList others;
        for (std::size_t i = 1; i < alike.size(); ++i)
            others += fileName(alike[i]->path);
        texts += describeExport(*alike.front());
        if (!others.isEmpty())
            texts.back() += u'\n' + qtTrId("exportAlsoFailed").arg(others.join(qtTrId(", ")));
    }
    return texts;
}

bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

QString describe(const ExportOutcome& outcome) {
    QStringList texts(qtTrId("ExportMsg", outcome.written).arg(QDir::toNativeSeparators(outcome.folder)));
    if (outcome.cancelled) texts += qtTrId("exportCancelled");
    if (outcome.kept > 0) texts += qtTrId("exportKept", outcome.kept);
    if (!outcome.failures.empty()) texts += qtTrId("exportFailed", static_cast<int>(outcome.failures.size()));
    return (texts + failureTexts(outcome.failures)).join("\n\n"_L1);
}

ExportController::ExportController(const Parts& needed, QWidget* over)
    : QObject(over), parts(needed), window(over), progress(new StepProgress(u"exportProgress"_s, over)) {}

void ExportController::exportFiles() {
    if (parts.store.getPatientArray().empty())
        return parts.panel.ShowMessage(qtTrId("exportNobody"), qtTrId("ExportTitle"));
    if (!parts.isReady()) return;
    const QString folder = parts.chooser.chooseFolder(window, qtTrId("exportFolder"));
    if (folder.isEmpty()) return;
    auto patients = parts.store.beginExport();
    if (!patients) return parts.panel.ShowMessage(describe(patients.error()), qtTrId("Warning"));
    outcome = {.folder = folder};
    const QStringList IDs = patients->patients();
    const auto all = std::make_shared<const PatientExport>(std::move(*patients));
    write(
        IDs, u".xml"_s,
        [all, folder](const QString& ID, Replace replace) { return all->writeXml(ID, folder, replace); },
        [all] { return all->finish(); });
}

void ExportController::exportCSV() {
    if (!parts.isReady()) return;
    const QString folder = parts.chooser.chooseFolder(window, qtTrId("exportCSVFolder"));
    if (folder.isEmpty()) return;
    outcome = {.folder = folder};
    write(
        {parts.store.getCurrentID()}, u".csv"_s,
        [this, folder](const QString& ID, Replace replace) {
            return parts.store.exportCSV(folder, ID, replace);
        },
        [] { return StoreResult(); });
}

void ExportController::exportFhir(AverageRule rule) {
    if (!parts.store.getPatientByID(parts.store.getCurrentID()))
        return parts.panel.ShowMessage(qtTrId("exportNoPatient"), qtTrId("ExportTitle"));
    if (!parts.isReady()) return;
    const QString folder = parts.chooser.chooseFolder(window, qtTrId("exportFhirFolder"));
    if (folder.isEmpty()) return;
    outcome = {.folder = folder};
    const auto bundles = std::make_shared<fhir::FhirExport>(parts.store, folder, rule);
    write(
        {parts.store.getCurrentID()}, fhir::fileExtension.toString(),
        [bundles](const QString& ID, Replace replace) { return bundles->write(ID, replace); },
        [bundles] { return bundles->finish(); });
}

void ExportController::write(const QStringList& IDs, const QString& extension, const Writer& writer,
                             const Finisher& finish) {
    std::vector<Target> targets;
    QStringList present;
    for (const QString& ID : IDs) {
        const QString path = exportPath(outcome.folder, ID, extension, parts.store.isDemonstration());
        targets.push_back({ID, isThere(path)});
        if (targets.back().isThere) present += fileName(path);
    }
    const bool mayReplace = !present.isEmpty() && askToReplace(present);
    const int total = static_cast<int>(targets.size());
    progress->run(
        {.title = qtTrId("exporting"),
         .total = total,
         .quickTotal = 20,
         .step = [=, this](int i) { writeOne(targets.at(static_cast<std::size_t>(i)), mayReplace, writer); },
         .finished =
             [=, this](int done) {
                 outcome.cancelled = done < total;
                 if (const StoreResult onDisk = finish(); !onDisk) outcome.failures.push_back(onDisk.error());
                 parts.panel.ShowMessage(describe(outcome), qtTrId("ExportTitle"));
             }});
}

bool ExportController::askToReplace(const QStringList& names) const {
    const QString folder = QDir::toNativeSeparators(outcome.folder);
    return parts.panel.AskToErase(
        qtTrId("exportReplace", static_cast<int>(names.size())).arg(folder, listInShort(names)),
        qtTrId("exportReplaceTitle"));
}

void ExportController::writeOne(const Target& target, bool mayReplace, const Writer& writer) {
    if (target.isThere && !mayReplace) {
        ++outcome.kept;
        return;
    }
    // Asked for nothing that turned up since the question.
    const StoreResult written = writer(target.ID, target.isThere ? Replace::yes : Replace::no);
    if (written)
        ++outcome.written;
    else
        outcome.failures.push_back(written.error());
}

} // namespace zel
