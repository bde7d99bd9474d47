#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/TableOptions.h"
#include "cli/Usage.h"
#include "store/FileImport.h"

#include <limits>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// What all files together brought.
struct Taken {
    qsizetype files = 0;
    bool hasTable = false; ///< of what was tried
    ImportCounts records;

    void add(const ImportCounts& counts) {
        ++files;
        records.patients += counts.patients;
        records.readings += counts.readings;
        records.comments += counts.comments;
        records.known += counts.known;
    }
};

void print(const Taken& taken, qsizetype refused, Surroundings& around) {
    const auto line = [&around](const char* key, auto count) {
        printLine(around.out, QLatin1StringView{key} + u": "_s + QString::number(count));
    };
    line("taken", taken.files);
    line("refused", refused);
    line("patients", taken.records.patients);
    line("readings", taken.records.readings);
    line("comments", taken.records.comments);
    if (taken.hasTable) line("known", taken.records.known);
}

/// The refusal, with the option that may help.
QString wordsOf(const ImportRefusal& refusal, bool isTable) {
    const bool isSpreadsheet = refusal.path.endsWith(u".csv"_s, Qt::CaseInsensitive);
    QString words = describe(refusal);
    if (isTable && refusal.code == ImportRefusalCode::alreadyKnown)
        words += u'\n' + qtTrId("CliTableKnown");
    else if (!isTable && isSpreadsheet && refusal.code == ImportRefusalCode::notReadable)
        words += u'\n' + qtTrId("CliColumnsHelp");
    return words;
}

void importTable(const QString& file, const TableImport& wanted, DataStore& store, Taken& taken,
                 Surroundings& around) {
    taken.hasTable = true;
    if (const auto counts = store.importTable(file, wanted))
        taken.add(*counts);
    else
        complain(around, u"zel import"_s, wordsOf(counts.error(), true));
}

void finish(FileImport& together, Taken& taken, Surroundings& around) {
    for (const ImportedFile& file : together.finish()) {
        if (file.result)
            taken.add(*file.result);
        else
            complain(around, u"zel import"_s, wordsOf(file.result.error(), false));
    }
}

/// In the order of the files, since a table may be of a patient whose file stands before it.
void importAll(const QStringList& files, const TableImport& wanted, DataStore& store, Taken& taken,
               Surroundings& around) {
    FileImport together{store};
    for (const QString& file : files) {
        const bool isTable = wanted.columns || isReadingTable(file);
        if (!isTable && wanted.patient.isEmpty()) {
            together.add(file);
            continue;
        }
        finish(together, taken, around);
        if (isTable)
            importTable(file, wanted, store, taken, around);
        else
            complain(around, u"zel import"_s, qtTrId("CliNoTable").arg(file));
    }
    finish(together, taken, around);
}

CommandResult runImport(const Request& request, Surroundings& around) {
    const QStringList files = request.options.positionalArguments();
    if (files.isEmpty()) return wrongUsage(qtTrId("CliFilesMissing"));
    const auto wanted = tableImportOf(request);
    if (!wanted) return tl::unexpected(wanted.error());
    const OpenedStore store = openStoreForWriting(around);
    if (!store) return tl::unexpected(store.error());
    const bool isInto = !wanted->patient.isEmpty();
    if (CommandResult known = isInto ? checkPatient(**store, wanted->patient) : CommandResult(); !known)
        return known;
    Taken taken;
    importAll(files, *wanted, **store, taken, around);
    print(taken, files.size() - taken.files, around);
    if (taken.files < files.size()) return failed({});
    return {};
}

} // namespace

Command importCommand() {
    return {"import", [] { return qtTrId("CliHelpImport"); }, tableOptions, runImport,
            std::numeric_limits<int>::max()};
}

} // namespace zel::cli
