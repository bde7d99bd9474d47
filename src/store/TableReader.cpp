#include "store/TableReader.h"

#include "store/ManualReading.h"
#include "store/MeanPressures.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The cells of one line, and the first thing that is wrong with them.
class LineCells {
public:
    LineCells(const CsvReader& record, const TableLayout& places) : line{record}, layout{places} {}

    [[nodiscard]] const QString& cell(std::size_t column) const {
        return line.cells()[layout.places[column]];
    }
    [[nodiscard]] const QString& cell(TableColumn column) const {
        return cell(static_cast<std::size_t>(column));
    }
    [[nodiscard]] QString text(TableColumn column) const { return plainText(cell(column)); }
    [[nodiscard]] bool isEmpty(TableColumn column) const { return cell(column).trimmed().isEmpty(); }

    /// What stands there, or 0 once something is wrong.
    std::uint32_t number(std::size_t column, const QString& title, std::span<const TableWord> words = {}) {
        const auto found = numberOf(cell(column), words);
        if (!found) refuse(column, title);
        return found.value_or(0);
    }
    std::uint32_t number(TableColumn column, std::span<const TableWord> words = {}) {
        return number(static_cast<std::size_t>(column), titleOf(column), words);
    }
    /// One of two words.
    bool isSecond(TableColumn column, QStringView first, QStringView second) {
        const QString word = cell(column).trimmed();
        if (word != first && word != second) refuse(column);
        return word == second;
    }
    void refuse(std::size_t column, const QString& title) {
        refuse(qtTrId("TableCell").arg(shortCell(cell(column)), title));
    }
    void refuse(TableColumn column) { refuse(static_cast<std::size_t>(column), titleOf(column)); }
    void refuse(const QString& why) {
        if (problem.isNull()) problem = why;
    }
    [[nodiscard]] const QString& firstProblem() const { return problem; }

private:
    const CsvReader& line;
    const TableLayout& layout;
    QString problem;
};

QString describeTime(TableTimeProblem problem, const QString& cell) {
    switch (problem) {
    case TableTimeProblem::noTime: return qtTrId("TableNoTime").arg(shortCell(cell));
    case TableTimeProblem::noOrder: return qtTrId("TableDateOrder").arg(shortCell(cell));
    case TableTimeProblem::skipped: return describe(ManualProblem::noDate);
    }
    return {};
}

/// An empty text: no date.
void readTime(LineCells& cells, const QString& text, DateOrder order, const TablePlace& place,
              ReadingModel& reading) {
    if (text.isEmpty()) {
        reading.ReadingDate = getNilReadingDate();
        return;
    }
    const auto time = readTableTime(text, order, place.zone);
    if (!time) return cells.refuse(describeTime(time.error(), text));
    reading.ReadingDate = time->time;
    reading.utcOffset = time->offset;
}

/// What nobody can have typed is not taken. What is left out counts nowhere, and so may be what it likes. A
/// monitor's clock may be ahead.
void checkValues(LineCells& cells, const ReadingModel& reading, const MeanPressures& means, bool isDated,
                 const TablePlace& place) {
    if (reading.isExcluded()) return;
    ManualReading values = ManualReading::of(reading);
    if (!isDated || (!reading.isManual && values.time > place.now)) values.time = place.now;
    if (const auto problem = manualProblem(values, place.now)) cells.refuse(describe(*problem));
    if (const QString problem = meanPressureProblem(means, reading); !problem.isNull()) cells.refuse(problem);
}

void readOwnValues(LineCells& cells, ReadingModel& reading) {
    reading.sys = cells.number(TableColumn::sys);
    reading.dia = cells.number(TableColumn::dia);
    reading.pulse = cells.number(TableColumn::pulse);
    reading.map = cells.number(TableColumn::map);
    reading.pp = cells.number(TableColumn::pp);
    reading.mam = cells.number(TableColumn::mam, mamWords());
    reading.Arrhythmia = cells.number(TableColumn::arrhythmia, arrhythmiaWords());
    reading.isManual = cells.isSecond(TableColumn::source, u"monitor", u"manual");
    const bool isExcluded = cells.isSecond(TableColumn::excluded, u"no", u"yes");
    if (!isExcluded && !cells.isEmpty(TableColumn::reason)) cells.refuse(TableColumn::reason);
    if (isExcluded) reading.exclusion = cells.text(TableColumn::reason);
    if (isExcluded && reading.exclusion.isNull()) reading.exclusion = u""_s; // null: it counts
}

/// None for a day in which there is none, or which stands for none.
Date noonOf(DayNumber day, const LocalZone& zone) {
    if (isNilDay(day)) return {};
    return zone.instantOf(Instant{std::chrono::days{day} + std::chrono::hours{12}});
}

/// Its two days stand for their first and their last second.
std::optional<CommentModel> readComment(LineCells& cells, const TablePlace& place) {
    using enum TableColumn;
    const auto given = {comment, commentFrom, commentTo, commentColour};
    if (std::ranges::all_of(given, [&](TableColumn column) { return cells.isEmpty(column); })) return {};
    CommentModel made;
    made.comment = cells.text(comment);
    made.degree = cells.number(commentColour, colourWords());
    made.beginDay = readTableDay(cells.cell(commentFrom));
    made.endDay = readTableDay(cells.cell(commentTo));
    const Date first = noonOf(made.beginDay, place.zone);
    const Date last = noonOf(made.endDay, place.zone);
    if (!first) cells.refuse(commentFrom);
    if (!last || made.endDay < made.beginDay) cells.refuse(commentTo);
    if (!cells.firstProblem().isNull()) return {};
    made.beginDate = DateToDayBoundary(*first, true);
    made.endDate = DateToDayBoundary(*last, false);
    return made;
}

/// As an import trims them, and refuses those that could not be saved or sent.
void readPatient(LineCells& cells, TableLine& line) {
    line.ID = TrimStr(cells.text(TableColumn::patient));
    line.familyName = cells.text(TableColumn::familyName);
    line.givenNames = cells.text(TableColumn::givenNames);
    const bool hasControl =
        std::ranges::any_of(line.ID, [](QChar c) { return c.category() == QChar::Other_Control; });
    if (IsEmptyID(line.ID) || hasControl) cells.refuse(TableColumn::patient);
}

tl::expected<TableLine, QString> lineOrProblem(TableLine line, const LineCells& cells) {
    if (!cells.firstProblem().isNull()) return tl::unexpected{cells.firstProblem()};
    return line;
}

} // namespace

QString shortCell(const QString& cell) {
    constexpr qsizetype longest = 40;
    const QString text = cell.left(2 * longest).simplified();
    return text.size() > longest ? text.left(longest) + u'…' : text;
}

tl::expected<TableLine, QString> readOwnLine(const CsvReader& line, const TableLayout& layout,
                                             const TablePlace& place) {
    LineCells cells{line, layout};
    TableLine read;
    readPatient(cells, read);
    read.reading.RecID = cells.text(TableColumn::record);
    const QString time = cells.cell(TableColumn::dateTime).trimmed();
    readTime(cells, time, DateOrder::ymd, place, read.reading);
    readOwnValues(cells, read.reading);
    checkValues(cells, read.reading, meanPressuresOf(read.reading), !time.isEmpty(), place);
    read.comment = readComment(cells, place);
    return lineOrProblem(std::move(read), cells);
}

QStringList titlesOf(const ForeignColumns& columns) {
    QStringList titles{columns.sys, columns.dia, columns.pulse, columns.date};
    if (!columns.time.isEmpty()) titles += columns.time;
    return titles;
}

tl::expected<TableLine, QString> readForeignLine(const CsvReader& line, const TableLayout& layout,
                                                 DateOrder dates, const TablePlace& place) {
    LineCells cells{line, layout};
    TableLine read;
    const QString date = cells.cell(3).trimmed();
    const QString time = layout.places.size() > 4 ? date + u' ' + cells.cell(4).trimmed() : date;
    ManualReading values;
    values.sys = cells.number(0, u"sys"_s);
    values.dia = cells.number(1, u"dia"_s);
    values.pulse = cells.number(2, u"pulse"_s);
    if (date.isEmpty()) cells.refuse(describeTime(TableTimeProblem::noTime, time));
    readTime(cells, time, dates, place, read.reading);
    values.time = read.reading.ReadingDate;
    read.reading = values.writtenOver(std::move(read.reading));
    checkValues(cells, read.reading, meanPressuresOf(line, layout), true, place);
    return lineOrProblem(std::move(read), cells);
}

} // namespace zel
