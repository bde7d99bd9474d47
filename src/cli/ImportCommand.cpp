#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"

#include <limits>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// What all files together brought.
struct Taken {
    qsizetype files = 0;
    ImportCounts records;
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
}

CommandResult runImport(const Request& request, Surroundings& around) {
    const QStringList files = request.options.positionalArguments();
    if (files.isEmpty()) return wrongUsage(qtTrId("CliFilesMissing"));
    const OpenedStore store = openStoreForWriting(around);
    if (!store) return tl::unexpected(store.error());
    Taken taken;
    for (const QString& file : files) {
        const auto counts = (*store)->importXml(file);
        if (!counts) {
            complain(around, u"zel import"_s, describe(counts.error()));
            continue;
        }
        ++taken.files;
        taken.records.patients += counts->patients;
        taken.records.readings += counts->readings;
        taken.records.comments += counts->comments;
    }
    print(taken, files.size() - taken.files, around);
    if (taken.files < files.size()) return failed({});
    return {};
}

} // namespace

Command importCommand() {
    return {"import", [] { return qtTrId("CliHelpImport"); }, [] { return QList<QCommandLineOption>{}; },
            runImport, std::numeric_limits<int>::max()};
}

} // namespace zel::cli
