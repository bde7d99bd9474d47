#include "store/ReadingModel.h"

#include "store/RecordXml.h"

#include <QStringList>

#include <array>
#include <cstdlib>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr XmlChild<ReadingModel> notMade(XmlChild<ReadingModel> child) {
    child.made = false;
    return child;
}

using R = ReadingModel;

/// The monitor's marker is midnight where the reading was stored, and stays a marker in another time zone.
void readDate(R& reading, std::string_view text) {
    constexpr std::string_view marker = "2000-01-01T00:00:00";
    reading.ReadingDate = text.starts_with(marker) ? Date(getNilReadingDate()) : XMLStrToDate(text);
    const auto offset = XMLStrToOffset(text);
    reading.utcOffset = offset ? static_cast<std::int16_t>(offset->count()) : R::noOffset;
}

/// Whether the clocks here show something else than those of the reading's offset.
bool isElsewhere(const R& reading) {
    if (reading.utcOffset == R::noOffset || reading.isUndated()) return false;
    const auto sinceEpoch = std::chrono::floor<std::chrono::minutes>(reading.ReadingDate->time_since_epoch());
    constexpr std::int64_t minutesADay = 1440;
    const std::int64_t here = reading.day * minutesADay + reading.minuteOfDay - sinceEpoch.count();
    // Offsets of the times before time zones have seconds.
    return std::abs(here - reading.utcOffset) > 1;
}

/// A child that only some readings have, behind the others; makeXmlNode() makes none.
void readSource(R& reading, std::string_view text) { reading.isManual = text == "manual"; }
QString sourceText(const R& reading) { return reading.isManual ? u"manual"_s : QString{}; }

void setChildText(pugi::xml_node element, const char* name, const QString& text) {
    pugi::xml_node child = firstElement(element, name);
    if (!child) child = element.append_child(name);
    setElementText(child, text);
}

/// All of them: behind the first that every reader takes, there may be another one.
void removeChildren(pugi::xml_node element, const char* name) {
    while (const pugi::xml_node child = firstElement(element, name))
        element.remove_child(child);
}

constexpr std::array readingChildren{
    xml::text<R, &R::ID>("ID"),
    XmlChild<R>{"RecID",
                [](R& reading, std::string_view text) { reading.RecID = RecordNumber::fromUtf8(text); },
                [](const R& reading) { return reading.RecID.text(); }},
    xml::number<R, &R::mam>("MAM"),
    xml::number<R, &R::Arrhythmia>("Arrhythmia"),
    XmlChild<R>{"ReadingDate", readDate, [](const R& reading) { return XMLDateToStr(reading.ReadingDate); }},
    xml::number<R, &R::sys>("Sys"),
    xml::number<R, &R::dia>("Dia"),
    xml::number<R, &R::map>("Map"),
    xml::number<R, &R::pp>("PP"),
    xml::number<R, &R::pulse>("Pulse"),
    XmlChild<R>{"Error"},
    notMade(xml::number<R, &R::erorr>("Erorr")),
    notMade(xml::text<R, &R::exclusion>("Excluded")),
    notMade({"Source", readSource, sourceText}),
};
constexpr std::span<const XmlChild<R>> readingTable{readingChildren};

/// The day that the display shows: undated readings all show the same, and so do all others when the
/// settings hold no known date format.
std::pair<bool, DayNumber> shownDay(const ReadingModel& reading, const SettingModel& settings) {
    const bool isUndated = reading.isUndated();
    return {isUndated, isUndated || settings.getDateFormat().isNull() ? noDay : reading.day};
}

/// What stands behind a line's last comma, in a column without a title, which is empty for all others.
QString exportedMark(const R& reading) {
    QStringList marks;
    if (reading.isManual) marks += u"manual"_s;
    if (reading.isExcluded()) marks += QString{u"excluded: "_s + reading.exclusion.simplified()}.trimmed();
    QString mark = marks.join(u"; "_s);
    const bool isQuoted = mark.contains(u',') || mark.contains(u'"');
    return isQuoted ? u'"' + mark.replace(u'"', u"\"\""_s) + u'"' : mark;
}

} // namespace

ReadingModel ReadingModel::initNA(Instant date) {
    ReadingModel reading;
    reading.isNA = true;
    reading.ReadingDate = date;
    return reading;
}

ReadingModel ReadingModel::initWithXMLNode(pugi::xml_node element) {
    ReadingModel reading;
    readChildren(reading, element, readingTable);
    return reading;
}

pugi::xml_node ReadingModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("MeasureRec");
    addChildren(element, readingTable);
    return element;
}

void ReadingModel::updateXMLNode(pugi::xml_node element) const {
    writeChildren(*this, element, readingTable);
}

void ReadingModel::changeXMLNode(pugi::xml_node element, const ReadingModel& before) const {
    for (const XmlChild<R>& known : readingTable) {
        if (!known.write) continue;
        if (known.read == readDate && ReadingDate == before.ReadingDate)
            continue; // to write it takes longest
        const QString text = known.write(*this);
        const QString old = known.write(before);
        if (text == old && text.isNull() == old.isNull()) continue;
        if (text.isNull())
            removeChildren(element, known.name);
        else
            setChildText(element, known.name, text);
    }
}

bool ReadingModel::isSame(const ReadingModel& other) const {
    const bool isSameDate =
        ReadingDate == other.ReadingDate || (isNilDate(ReadingDate) && isNilDate(other.ReadingDate));
    return isSameDate && values() == other.values();
}

ReadingModel::Values ReadingModel::values() const { return {Arrhythmia, pulse, dia, sys, map, pp, mam}; }

bool ReadingModel::isPad() const { return Arrhythmia == 1 || Arrhythmia == 2; }

bool ReadingModel::isAFib() const { return Arrhythmia == 4 || Arrhythmia == 5; }

QString ReadingModel::getPadStr() const {
    if (!isPad() && !isAFib()) return u"N/A"_s;
    return Arrhythmia == 2 || Arrhythmia == 5 ? u"Yes"_s : u"No"_s;
}

QString ReadingModel::getMamStr() const { return mam == 1 ? u"Yes"_s : u"No"_s; }

QString ReadingModel::strDisplayPad() const {
    if (!isPad() && !isAFib()) return qtTrId("N/A");
    return Arrhythmia == 2 || Arrhythmia == 5 ? qtTrId("Yes") : qtTrId("No");
}

QString ReadingModel::strDisplayMam() const { return mam == 1 ? qtTrId("Yes") : qtTrId("No"); }

QString ReadingModel::exportCSV(const SettingModel& settings) const {
    QString date = u","_s;
    if (!isUndated()) {
        date = dayText(day, settings.getDateFormat()) + u','
               + QString::asprintf("%d:%d %s", hourOnDial(minuteOfDay), minuteOfDay % 60,
                                   isPMData ? "PM" : "AM");
    }
    QString line = date + u',';
    for (const std::uint32_t value : {sys, dia, pulse, map})
        line += toDecimal(value) + u',';
    return line + getMamStr() + u',' + getPadStr() + u',' + exportedMark(*this) + u'\n';
}

void ReadingModel::postInit(const ReadingModel* previous, const SettingModel& settings,
                            const LocalZone& zone) {
    const auto local = zone.dayMinute(ReadingDate);
    day = local.day;
    minuteOfDay = static_cast<std::uint16_t>(local.minute);
    isPMData = minuteOfDay >= 12 * 60;
    isOfOtherZone = isElsewhere(*this);
    bYellowBackground = previous && previous->day == day && previous->bYellowBackground;
    bDrawTopLine = previous && shownDay(*previous, settings) != shownDay(*this, settings);
}

QString ReadingModel::strDisplayDate(const SettingModel& settings) const {
    return isUndated() ? qtTrId("n.a") : dayText(day, settings.getDateFormat());
}

QString ReadingModel::strDisplayTime(const SettingModel& settings) const {
    return isUndated() ? u"--:--"_s : settings.timeText(minuteOfDay);
}

} // namespace zel
