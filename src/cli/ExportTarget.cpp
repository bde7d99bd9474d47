#include "cli/ExportTarget.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

tl::expected<QString, Failure> folderOf(const Request& request) {
    const QString folder = request.options.positionalArguments().value(0);
    if (folder.isEmpty()) return wrongUsage(qtTrId("CliFolderMissing"));
    if (!QDir{folder}.exists()) return failed(qtTrId("CliNoFolder").arg(folder));
    return folder;
}

Replace replaceOf(const Request& request) {
    return request.options.isSet(u"force"_s) ? Replace::yes : Replace::no;
}

QString reason(const StoreError& error) {
    const QString words = describeExport(error);
    return error.code == StoreErrorCode::alreadyExists ? words + u' ' + qtTrId("CliForceReplaces") : words;
}

QString written(const QString& folder, const QString& ID, const QString& extension) {
    return u"written: "_s + exportPath(folder, ID, extension);
}

} // namespace zel::cli
