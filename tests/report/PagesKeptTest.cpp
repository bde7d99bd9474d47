#include "SampleReport.h"

#include <QFile>

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

// Printed pages stay as they are unless somebody means to change them: tests/data/report-pages.txt has all
// that stands on those of three reports. ZEL_KEEP_PAGES=1 writes it anew, for git to show what has changed.

namespace {

/// A shape: what it is, and the numbers that it is drawn with.
struct Shape {
    QString kind;
    std::vector<double> numbers;
};

QString written(const std::vector<double>& numbers) {
    QString words;
    for (const double number : numbers)
        words += u' ' + QString::number(std::round(number * 10) / 10);
    return words;
}

void add(Shape& shape, const std::vector<Point>& points) {
    for (const Point& point : points)
        shape.numbers.insert(shape.numbers.end(), {point.x, point.y});
}

QString kind(const char* name, const QColor& color) {
    return QLatin1StringView(name) + u' ' + color.name(QColor::HexArgb).sliced(1);
}

Shape shapeOf(const FillRect& one) {
    return {kind("fill", one.color), {one.rect.x, one.rect.y, one.rect.width, one.rect.height}};
}
Shape shapeOf(const RoundRect& one) {
    return {kind("round", one.color),
            {one.rect.x, one.rect.y, one.rect.width, one.rect.height, double(one.radius), one.strokeWidth}};
}
Shape shapeOf(const StraightLine& one) {
    return {kind("line", one.color), {one.from.x, one.from.y, one.to.x, one.to.y, one.width}};
}
Shape shapeOf(const Circle& one) {
    return {kind(one.filled ? "disc" : "circle", one.color), {one.centre.x, one.centre.y, one.diameter}};
}
Shape shapeOf(const TextLine& one) {
    return {u"%1 %2%3 on%4:"_s.arg(kind("text", one.attribute.color))
                .arg(one.attribute.size)
                .arg(one.attribute.bold ? "b"_L1 : ""_L1, written({one.origin.y})),
            {one.origin.x}};
}
Shape shapeOf(const PolyLine& one) {
    Shape shape{u"polyline"_s, {}};
    add(shape, one.points);
    return shape;
}
Shape shapeOf(const Curve& one) {
    Shape shape{kind("curve", one.color), {one.width}};
    add(shape, one.points);
    return shape;
}
Shape shapeOf(const Area& one) {
    Shape shape{kind("area", one.color), {}};
    add(shape, one.outline);
    return shape;
}
Shape shapeOf(const PointMarks& one) {
    Shape shape{one.bordered ? u"marks"_s : u"small marks"_s, {}};
    add(shape, one.points);
    return shape;
}
Shape shapeOf(const Ticks& one) {
    Shape shape{kind("ticks", one.color), {}};
    for (const Ticks::Tick& tick : one.ticks)
        shape.numbers.insert(shape.numbers.end(), {tick.x, tick.y1, tick.y2});
    return shape;
}
Shape shapeOf(const ImageItem& one) {
    return {u"image "_s + one.name, {one.rect.x, one.rect.y, one.rect.width, one.rect.height}};
}
Shape shapeOf(const BeginClip& one) {
    return {u"clip"_s, {one.rect.x, one.rect.y, one.rect.width, one.rect.height, double(one.radius)}};
}
Shape shapeOf(const EndClip&) { return {u"end of clip"_s, {}}; }
Shape shapeOf(const PictureItem& item) {
    return std::visit([](const auto& one) { return shapeOf(one); }, item);
}

/// How many, the first one, and the sum of all.
QString summary(const std::vector<Shape>& alike) {
    double sum = 0;
    for (std::size_t shape = 0; shape < alike.size(); ++shape)
        for (std::size_t i = 0; i < alike[shape].numbers.size(); ++i)
            sum += alike[shape].numbers[i] * static_cast<double>(1 + i % 7 + shape % 11);
    std::vector<double> first = alike.front().numbers;
    first.resize(std::min<std::size_t>(6, first.size()));
    return u"%1 x %2%3 ... %4"_s.arg(alike.size())
        .arg(alike.front().kind, written(first))
        .arg(sum, 0, 'f', 1);
}

/// Many shapes of a kind in a row, such as a grid or the numbers of a row, are one line.
QStringList linesOf(const Picture& page) {
    QStringList lines;
    for (std::size_t at = 0; at < page.size();) {
        std::vector<Shape> alike;
        QString line = shapeOf(page[at]).kind;
        for (; at < page.size() && (alike.empty() || shapeOf(page[at]).kind == alike.front().kind); ++at) {
            alike.push_back(shapeOf(page[at]));
            line += written(alike.back().numbers);
            if (const auto* text = std::get_if<TextLine>(&page[at])) line += u" '%1'"_s.arg(text->text);
        }
        const bool isText = line.startsWith("text"_L1);
        const bool isShort = alike.size() < 4 && alike.front().numbers.size() < 7;
        lines += isText || isShort ? line : summary(alike);
    }
    return lines;
}

QStringList linesOf(const QString& name, const PrintView& view,
                    const std::vector<Section>& which = allSections()) {
    QStringList lines;
    for (const Section section : which) {
        const int total = view.getTotalPages(section);
        for (int page = 1; page <= total; ++page) {
            lines += u"== %1, %2, page %3 of %4"_s.arg(name, QLatin1StringView(facts(section).key))
                         .arg(page)
                         .arg(total);
            lines += linesOf(view.page(section, page));
        }
    }
    return lines;
}

/// Every mark that pages have, and texts that have room.
SampleReport usualReport() {
    SampleReport sample(34, 1);
    sample.highFrom = {135, 85};
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-22"), false);
    sample.patient.Sex = 1;
    sample.patient.Smoker = 1;
    sample.patient.PhoneEmail = u"ada@example.org"_s;
    sample.patient.FamilyHistory = u"Father: stroke at 60"_s;
    for (std::uint32_t code = 0; code <= 5; ++code)
        sample.readings[7 + code].Arrhythmia = code;
    sample.addComment("2019-01-03", "2019-01-05", 1, u"Forgot her tablets, felt dizzy in the evening."_s);
    sample.addComment("2019-01-12", "2019-01-12", 2, u"Long walk."_s);
    return sample;
}

/// More than forms have room for, half a day of readings, no limit for one value, other units, fewer columns.
SampleReport fullReport() {
    SampleReport sample(90, 7);
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-28"), false);
    sample.selection.view = ViewSelection::pmOnly;
    PatientModel& patient = sample.patient;
    patient.GivenNames = u"Maximiliane Alexandra Wilhelmina Josephine Friederike"_s;
    patient.FamilyName = u"Wolfeschlegelsteinhausen-Montgomery of the Upper Valley"_s;
    patient.Address = u"Care of Moreau\nBack house\nThird floor\n17 Long Lane\n12345 Oldtown\nSea County"_s;
    patient.FamilyHistory = u"Both parents with high blood pressure. "_s.repeated(12).trimmed();
    patient.PatientNotes =
        u"Takes her tablets after breakfast and measures before it. "_s.repeated(30).trimmed();
    patient.PhoneEmail = u"a.very.long.address.for.messages@department.of.cardiology.example.org"_s;
    patient.DateOfBirth = getNilDate();
    sample.settings.metricFormat = u"lb / ft"_s;
    sample.settings.showPPorMap = 1;
    sample.settings.diaStandard = 0;
    sample.settings.physicianAddress = u"Practice for everything\n"_s.repeated(9).trimmed();
    sample.getShowMam = sample.getShowPad = false;
    sample.addComment("2019-01-08", "2019-01-20", 4,
                      u"Away from home, with another monitor. "_s.repeated(80));
    return sample;
}

/// Readings that are left out or typed in, reasons and comments that go on on the next page, a day without
/// reading, more of a practice than the foot has room for.
SampleReport markedReport() {
    SampleReport sample(26);
    sample.selection.period.end = DateToDayBoundary(noonOf("2019-01-13"), false);
    sample.highFrom = {130, 80};
    sample.settings.physicianAddress = u"Practice for everything\n"_s.repeated(90).trimmed();
    sample.readings[0].exclusion = u"Cuff over the sleeve"_s;
    sample.readings[3].exclusion = u""_s;
    sample.readings[4].isManual = true;
    sample.readings[10].isManual = true;
    sample.readings[10].exclusion = u"Measured after four flights of stairs, and talked. "_s.repeated(90);
    sample.readings[12].sys = 1171;
    sample.readings.erase(sample.readings.begin() + 18, sample.readings.begin() + 20);
    for (int lines = 0; lines < 5; ++lines)
        sample.addComment("2019-01-08", "2019-01-09", 1 + static_cast<std::uint32_t>(lines) % 4,
                          u"Away from home, with another monitor. "_s.repeated(30 * lines + 1));
    return sample;
}

TEST(PagesKept, standAsTheyWereMeant) {
    using enum Section;
    const QStringList pages =
        linesOf(u"usual"_s, usualReport().view()) + linesOf(u"full"_s, fullReport().view(QPageSize::Letter))
        + linesOf(u"marked"_s, markedReport().view(), {summary, table, SWStatistics, comment});
    QFile kept(QStringLiteral(ZEL_TEST_DATA "/report-pages.txt"));
    if (qEnvironmentVariableIsSet("ZEL_KEEP_PAGES")) {
        ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
        kept.write(pages.join(u'\n').toUtf8() + '\n');
        return;
    }
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    const QStringList meant = QString::fromUtf8(kept.readAll()).trimmed().split(u'\n');
    QString place;
    for (qsizetype i = 0; i < std::min(pages.size(), meant.size()); ++i) {
        if (pages[i].startsWith("=="_L1)) place = pages[i];
        ASSERT_EQ(pages[i].toStdString(), meant[i].toStdString()) << qPrintable(place) << ", line " << i + 1;
    }
    EXPECT_EQ(pages.size(), meant.size());
}

} // namespace

} // namespace zel
