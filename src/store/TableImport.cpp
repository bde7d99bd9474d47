#include "store/AtomicFile.h"
#include "store/TableReader.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringDecoder>

#include <set>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

tl::unexpected<ImportRefusal> tableRefused(ImportRefusalCode code, const QString& path,
                                           const QString& subject = {}, const QString& detail = {}) {
    return tl::unexpected{ImportRefusal{code, path, subject, detail}};
}

/// UTF-8, or what a byte-order mark says; none where the bytes are no such text.
std::optional<QString> textOfTable(QByteArrayView content) {
    const auto marked = QStringConverter::encodingForData(content);
    QStringDecoder decoder{marked.value_or(QStringConverter::Utf8)};
    QString text = decoder(content);
    if (decoder.hasError()) return {};
    return text;
}

/// The lines that cannot be taken, as many of them as a person reads.
class BadLines {
public:
    void add(std::size_t line, const QString& why) {
        constexpr qsizetype most = 20;
        if (told.size() < most)
            told += qtTrId("TableLine").arg(line).arg(why);
        else
            ++others;
    }
    [[nodiscard]] bool isEmpty() const { return told.isEmpty(); }
    [[nodiscard]] QString words() const {
        return (others > 0 ? told + QStringList{qtTrId("TableMoreLines", others)} : told).join(u'\n');
    }

private:
    QStringList told;
    int others = 0;
};

/// Gathers the lines by patient.
class TableGatherer {
public:
    explicit TableGatherer(const TableImport& asked) : wanted{asked} {}

    /// \return why the line does not go with those before it, or with what is wanted
    [[nodiscard]] QString add(TableLine line) {
        if (wanted.columns)
            line.ID = wanted.patient;
        else if (!wanted.patient.isEmpty() && line.ID != wanted.patient)
            return qtTrId("TableOtherPatient").arg(shortCell(line.ID), wanted.patient);
        TablePatient& patient = patientOf(line);
        if (patient.familyName != line.familyName || patient.givenNames != line.givenNames)
            return qtTrId("TableOtherNames").arg(line.ID);
        line.reading.ID = line.ID;
        patient.readings.push_back(std::move(line.reading));
        if (line.comment) addComment(patient, std::move(*line.comment));
        return {};
    }
    [[nodiscard]] ReadingTable take() { return std::move(table); }

private:
    TablePatient& patientOf(const TableLine& line) {
        const auto known = places.constFind(line.ID);
        if (known != places.constEnd()) return table.patients[*known];
        places.insert(line.ID, table.patients.size());
        return table.patients.emplace_back(TablePatient{line.ID, line.familyName, line.givenNames, {}, {}});
    }
    void addComment(TablePatient& patient, CommentModel comment) {
        comment.ID = patient.ID;
        const bool isNew =
            comments.emplace(comment.ID, comment.beginDay, comment.endDay, comment.degree, comment.comment)
                .second;
        if (isNew) patient.comments.push_back(std::make_unique<CommentModel>(std::move(comment)));
    }

    const TableImport& wanted;
    ReadingTable table;
    QHash<QString, std::size_t> places;
    std::set<std::tuple<QString, DayNumber, DayNumber, std::uint32_t, QString>> comments;
};

tl::expected<TableLine, QString> readLine(const CsvReader& line, const TableLayout& layout,
                                          const TableImport& wanted, const TablePlace& place) {
    if (!line.isWhole()) return tl::unexpected{qtTrId("TableQuotation")};
    if (line.count() != layout.cells)
        return tl::unexpected{qtTrId("TableCells").arg(line.count()).arg(layout.cells)};
    return wanted.columns ? readForeignLine(line, layout, wanted.columns->dates, place)
                          : readOwnLine(line, layout, place);
}

/// Each line behind the titles; all of them, so that every one that is wrong is told at once.
tl::expected<ReadingTable, ImportRefusal> readLines(QStringView text, const TableLayout& layout,
                                                    const QString& path, const TableImport& wanted,
                                                    Instant now) {
    const TablePlace place{now, {}};
    CsvReader reader{text, layout.delimiter};
    TableGatherer gathered{wanted};
    BadLines bad;
    std::size_t lines = 0;
    for (bool isHeader = true; reader.next(); isHeader = false) {
        if (isHeader || reader.isBlank()) continue;
        if (++lines > mostTableReadings) return tableRefused(ImportRefusalCode::tooManyLines, path);
        auto line = readLine(reader, layout, wanted, place);
        const QString problem = line ? gathered.add(std::move(*line)) : line.error();
        if (!problem.isNull()) bad.add(reader.line(), problem);
    }
    if (!bad.isEmpty()) return tableRefused(ImportRefusalCode::badLines, path, {}, bad.words());
    if (lines == 0) return tableRefused(ImportRefusalCode::noReading, path);
    ReadingTable table = gathered.take();
    table.isForeign = wanted.columns.has_value();
    return table;
}

} // namespace

bool isReadingTable(const QString& path) {
    constexpr qint64 enough = 4096;
    QFile file{path};
    // A pipe or a device has no end to wait for.
    if (!QFileInfo{path}.isFile() || !file.open(QIODevice::ReadOnly)) return false;
    const QByteArray begin = file.read(enough);
    QStringDecoder decoder{QStringConverter::encodingForData(begin).value_or(QStringConverter::Utf8)};
    const QString text = decoder(begin); // which may end within a character
    QStringList titles;
    for (const TableColumn column :
         {TableColumn::patient, TableColumn::dateTime, TableColumn::sys, TableColumn::dia})
        titles.append(titleOf(column));
    return findColumns(text, titles).has_value();
}

tl::expected<ReadingTable, ImportRefusal> readReadingTable(const QByteArray& content, const QString& path,
                                                           const TableImport& wanted, Instant now) {
    const auto text = textOfTable(content);
    if (!text) return tableRefused(ImportRefusalCode::notReadable, path, {}, qtTrId("TableNotUtf8"));
    const auto layout = findColumns(*text, wanted.columns ? titlesOf(*wanted.columns) : tableTitles());
    if (!layout) return tableRefused(ImportRefusalCode::missingColumn, path, layout.error());
    return readLines(*text, *layout, path, wanted, now);
}

} // namespace zel
