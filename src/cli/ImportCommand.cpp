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
    std::size_t tablePatients = 0;
    ImportCounts records;

    void add(const ImportCounts& counts, bool isTable) {
        ++files;
        if (isTable) tablePatients += counts.patients;
        records.patients += counts.patients;
        records.readings += counts.readings;
        records.comments += counts.comments;
        records.known += counts.known;
        records.leftOut += counts.leftOut;
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
    if (taken.hasTable) line("left-out", taken.records.leftOut);
}

/// What the user has to know beside the numbers.
void tellTableEffects(const Taken& taken, Surroundings& around) {
    if (const auto patients = static_cast<int>(taken.tablePatients); patients > 0)
        complain(around, u"zel import"_s, qtTrId("CliTableAssumed", patients));
    if (const auto leftOut = static_cast<int>(taken.records.leftOut); leftOut > 0)
        complain(around, u"zel import"_s, qtTrId("CliTypedLeftOut", leftOut));
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
        taken.add(*counts, true);
    else
        complain(around, u"zel import"_s, wordsOf(counts.error(), true));
}

void finish(FileImport& together, Taken& taken, Surroundings& around) {
    for (const ImportedFile& file : together.finish()) {
        if (file.result)
            taken.add(*file.result, false);
        else
            complain(around, u"zel import"_s, wordsOf(file.result.error(), false));
    }
}

/// In the order of the files: of two with one new patient, the first is taken and the second refused.
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
    tellTableEffects(taken, around);
    if (taken.files < files.size()) return failed({});
    return {};
}

} // namespace

Command importCommand() {
    return {"import", [] { return qtTrId("CliHelpImport"); }, tableOptions, runImport,
            std::numeric_limits<int>::max()};
}

} // namespace zel::cli
