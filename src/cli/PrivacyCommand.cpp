#include "cli/Commands.h"
#include "cli/Usage.h"
#include "store/Privacy.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

CommandResult mend(const QString& dataFile) {
    QStringList left;
    for (const StoreError& error : makePrivate(dataFile))
        left += describe(error);
    if (!left.isEmpty()) return failed(left.join(u'\n'));
    return {};
}

/// Also with a data file that cannot be read.
CommandResult runPrivacy(const Request& request, Surroundings& around) {
    if (QDir::isRelativePath(around.paths.home)) return failed(qtTrId("CliNoHome"));
    const QString path = DataFile(around.paths, around.clock).getZELXMLPath();
    CommandResult mended = request.options.isSet(u"mend"_s) ? mend(path) : CommandResult{};
    const QStringList open = readableByOthers(path);
    for (const QString& file : open)
        printLine(around.out, u"readable by others: "_s + file);
    if (open.isEmpty()) printLine(around.out, u"private"_s);
    return mended;
}

} // namespace

Command privacyCommand() {
    return {"privacy", [] { return qtTrId("CliHelpPrivacy"); }, [] { return QList{flag(u"mend"_s)}; },
            runPrivacy};
}

} // namespace zel::cli
