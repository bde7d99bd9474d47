#include "app/settings/ImportController.h"

#include "app/widgets/Log.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString takenText(const QString& name, const ImportCounts& counts) {
    const auto number = [](std::size_t count) { return static_cast<int>(count); };
    return qtTrId("importTaken")
        .arg(name, qtTrId("patientCount", number(counts.patients)),
             qtTrId("readingCount", number(counts.readings)),
             qtTrId("commentCount", number(counts.comments)));
}

} // namespace

QString describe(const ImportOutcome& outcome) {
    QStringList texts;
    if (outcome.taken.empty()) {
        texts += qtTrId("importNone");
    } else {
        QStringList lines(qtTrId("importedFiles", static_cast<int>(outcome.taken.size())));
        for (const auto& [name, counts] : outcome.taken)
            lines += takenText(name, counts);
        texts += lines.join(u'\n');
    }
    if (outcome.notReached > 0) texts += qtTrId("importCancelled", outcome.notReached);
    if (!outcome.refused.empty() && !outcome.taken.empty())
        texts += qtTrId("importRefused", static_cast<int>(outcome.refused.size()));
    for (const ImportRefusal& refusal : outcome.refused)
        texts += describe(refusal);
    return texts.join("\n\n"_L1);
}

ImportController::ImportController(const Parts& needed, QWidget* over)
    : QObject(over), parts(needed), window(over), progress(new StepProgress(u"importProgress"_s, over)) {}

void ImportController::importFiles() { importAll(parts.chooser.chooseFiles(window, context())); }

void ImportController::importAmong(const QStringList& files, const QString& remark) {
    ImportContext among = context();
    among.files = files;
    among.remark = remark;
    importAll(parts.chooser.chooseFiles(window, among));
}

void ImportController::importAll(const QStringList& paths) {
    if (paths.isEmpty()) return;
    outcome = {};
    const int total = static_cast<int>(paths.size());
    progress->run({.title = qtTrId("importing"),
                   .total = total,
                   .quickTotal = 5, // each may be large
                   .step = [this, paths](int place) { files.add(paths.at(place)); },
                   .finished = [this, total](int done) { finish(total - done); }});
}

ImportContext ImportController::context() const {
    return {.isKnown = [this](const QString& ID) { return parts.store.validIDinXML(ID); },
            .dateFormat = std::as_const(parts.store).getSetting().getDateFormat()};
}

void ImportController::tell(const ImportedFile& file) {
    const QString name = QFileInfo(file.path).fileName();
    qCDebug(lcApp, "file %s %s", qUtf8Printable(name), qUtf8Printable(file.path));
    if (file.result)
        outcome.taken.emplace_back(name, *file.result);
    else
        outcome.refused.push_back(file.result.error());
}

/// What was read until then is taken, also after a cancel.
void ImportController::finish(int notReached) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // the data file is written
    const std::vector<ImportedFile> ended = files.finish();
    QGuiApplication::restoreOverrideCursor();
    for (const ImportedFile& file : ended)
        tell(file);
    outcome.notReached = notReached;
    const bool mayBeLost = std::ranges::any_of(outcome.refused, [](const ImportRefusal& each) {
        return each.code == ImportRefusalCode::notFlushed; // taken all the same
    });
    if (!outcome.taken.empty() || mayBeLost) emit imported();
    parts.panel.ShowMessage(describe(outcome), qtTrId("importTitle"));
}

} // namespace zel
