#include "cli/TableOptions.h"

#include "cli/Usage.h"
#include "store/CsvText.h"

#include <QMap>
#include <QSet>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// The keys of "date=Date,sys=Systolic" with the titles behind them. A title with a comma in it makes its
/// part a quoted cell.
tl::expected<QMap<QString, QString>, Failure> columnTitles(const QString& value) {
    CsvReader list{value, u','};
    const bool isList = list.next() && list.isWhole();
    QMap<QString, QString> titles;
    for (const QString& part : list.cells()) {
        const QString key = part.section(u'=', 0, 0).trimmed();
        const QString title = part.section(u'=', 1).trimmed();
        if (title.isEmpty() || titles.contains(key)) return wrongUsage(qtTrId("CliColumnsForm"));
        titles.insert(key, title);
    }
    if (!isList || list.next()) return wrongUsage(qtTrId("CliColumnsForm"));
    return titles;
}

tl::expected<ForeignColumns, Failure> foreignColumns(const QString& value) {
    auto titles = columnTitles(value);
    if (!titles) return tl::unexpected(titles.error());
    const QList<QString> all = titles->values();
    const bool isEachOnce = QSet<QString>(all.begin(), all.end()).size() == all.size();
    ForeignColumns columns;
    columns.date = titles->take(u"date"_s);
    columns.time = titles->take(u"time"_s);
    columns.sys = titles->take(u"sys"_s);
    columns.dia = titles->take(u"dia"_s);
    columns.pulse = titles->take(u"pulse"_s);
    for (const QString& needed : {columns.date, columns.sys, columns.dia, columns.pulse})
        if (needed.isEmpty()) return wrongUsage(qtTrId("CliColumnsForm"));
    if (!isEachOnce || !titles->isEmpty()) return wrongUsage(qtTrId("CliColumnsForm"));
    return columns;
}

tl::expected<DateOrder, Failure> dateOrder(const QString& value) {
    if (value == "dmy"_L1) return DateOrder::dmy;
    if (value == "mdy"_L1) return DateOrder::mdy;
    if (value == "ymd"_L1) return DateOrder::ymd;
    return wrongUsage(qtTrId("CliDatesForm").arg(value));
}

} // namespace

QList<QCommandLineOption> tableOptions() {
    return {valued(u"patient"_s), valued(u"columns"_s), valued(u"dates"_s)};
}

tl::expected<TableImport, Failure> tableImportOf(const Request& request) {
    const auto isSet = [&request](const QString& name) { return request.options.isSet(name); };
    TableImport wanted;
    if (isSet(u"patient"_s) || isSet(u"columns"_s)) {
        const auto ID = requiredValue(request, u"patient"_s);
        if (!ID) return tl::unexpected(ID.error());
        wanted.patient = *ID;
    }
    if (isSet(u"columns"_s) || isSet(u"dates"_s)) {
        const auto columns = requiredValue(request, u"columns"_s).and_then(foreignColumns);
        if (!columns) return tl::unexpected(columns.error());
        wanted.columns = *columns;
    }
    if (isSet(u"dates"_s)) {
        const auto order = dateOrder(request.options.value(u"dates"_s));
        if (!order) return tl::unexpected(order.error());
        wanted.columns->dates = *order;
    }
    return wanted;
}

} // namespace zel::cli
