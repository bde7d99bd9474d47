#include "store/DocumentElements.h"
#include "store/ManualReading.h"
#include "store/NewReadings.h"
#include "store/ReadingTable.h"
#include "store/Records.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// What a reading that was typed in is known by, as where one is typed in the window.
using TypedKey = std::tuple<Date, std::uint32_t, std::uint32_t, std::uint32_t>;

TypedKey typedKey(const ReadingModel& reading, const LocalZone& zone) {
    const bool isUndated = isUndatedDay(zone.day(reading.ReadingDate));
    const Date minute =
        isUndated ? Date{} : Date{Instant{std::chrono::floor<std::chrono::minutes>(*reading.ReadingDate)}};
    return {minute, reading.sys, reading.dia, reading.pulse};
}

/// Whether each of the patient's readings is to be added. One that was measured is known as in a download;
/// of equal ones that were typed in each stands for one, but in another program's table, which may have a
/// line twice.
class NewTableReadings {
public:
    NewTableReadings(pugi::xml_node root, const TablePatient& patient, bool isForeign)
        : added(patient.readings.size(), false) {
        markMeasured(root, patient);
        const LocalZone zone;
        std::map<TypedKey, std::size_t> stored;
        for (const pugi::xml_node node : root.children()) {
            if (isElement(node, "MeasureRec") && childText(node, "ID") == patient.ID)
                ++stored[typedKey(ReadingModel::initWithXMLNode(node), zone)];
        }
        for (std::size_t i = 0; i < added.size(); ++i) {
            if (!patient.readings[i].isManual) continue;
            std::size_t& alike = stored[typedKey(patient.readings[i], zone)];
            added[i] = alike == 0;
            if (isForeign)
                ++alike;
            else if (alike > 0)
                --alike;
        }
    }
    [[nodiscard]] bool has(std::size_t place) const { return added[place]; }

private:
    void markMeasured(pugi::xml_node root, const TablePatient& patient) {
        ReadingList measured;
        for (std::size_t i = 0; i < patient.readings.size(); ++i) {
            if (patient.readings[i].isManual) continue;
            measured.push_back(patient.readings[i]);
            measured.back().RecID = QString::number(i); // to be found by, among those that are new
        }
        for (const ReadingModel& reading : newReadings(root, patient.ID, std::move(measured)))
            added[reading.RecID.toULongLong()] = true;
    }
    std::vector<bool> added;
};

/// Gives the readings that are added their numbers: the table's own where no other reading has it.
class ReadingNumbers {
public:
    ReadingNumbers(pugi::xml_node root, const std::vector<TablePatient>& patients) {
        for (const pugi::xml_node node : root.children())
            if (isElement(node, "MeasureRec")) take(childText(node, "RecID"));
        for (const TablePatient& patient : patients)
            for (const ReadingModel& reading : patient.readings)
                if (isNumber(reading.RecID)) counters.countID(kind, reading.RecID);
    }
    [[nodiscard]] QString numberFor(const QString& wished) {
        const QString number = isNumber(wished) && !taken.contains(wished) ? wished : counters.getMaxID(kind);
        take(number);
        return number;
    }

private:
    static constexpr auto kind = Records::Counter::reading;
    void take(const QString& number) {
        taken.insert(number);
        counters.countID(kind, number);
    }
    static bool isNumber(const QString& text) {
        constexpr qsizetype mostDigits = 15; // below 2^53, from where on numbers are not counted
        return !text.isEmpty() && text.size() <= mostDigits
               && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    }
    QSet<QString> taken;
    Records counters;
};

/// Adds what is new of the patients of a table.
class TableMerge {
public:
    TableMerge(pugi::xml_node to, const ReadingTable& from, StepRecorder& recording, ImportCounts& counting)
        : root{to}, table{from}, recorder{recording}, counts{counting}, numbers{to, from.patients} {}

    void add(const TablePatient& patient) {
        if (!findElement(root, "Patient", "ID", patient.ID)) addPatient(patient);
        const NewTableReadings isNew{root, patient, table.isForeign};
        leaveOutTypedOnes(patient, isNew);
        addReadings(patient, isNew);
        addComments(patient);
    }

private:
    void addPatient(const TablePatient& patient) {
        PatientModel made;
        made.ID = patient.ID;
        made.FamilyName = patient.familyName;
        made.GivenNames = patient.givenNames;
        made.DateOfBirth = getNilDate();
        const pugi::xml_node element = insertElement<PatientModel>(root, lastElement(root, "Patient"));
        made.updateXMLNode(element, true);
        recorder.added(element);
        ++counts.patients;
    }

    /// So that nothing that was measured counts twice, as with a download.
    void leaveOutTypedOnes(const TablePatient& patient, const NewTableReadings& isNew) {
        ReadingList measured;
        for (std::size_t i = 0; i < patient.readings.size(); ++i) {
            const ReadingModel& reading = patient.readings[i];
            if (isNew.has(i) && !reading.isManual && !reading.isExcluded()) measured.push_back(reading);
        }
        for (const pugi::xml_node element : typedMeanwhileMeasured(root, patient.ID, measured)) {
            const auto before = ReadingModel::initWithXMLNode(element);
            ReadingModel excluded = before;
            excluded.exclusion = measuredReason.toString();
            recorder.willChange(element);
            excluded.changeXMLNode(element, before);
        }
    }

    void addReadings(const TablePatient& patient, const NewTableReadings& isNew) {
        pugi::xml_node last = placeForReadings(root, patient.ID);
        for (std::size_t i = 0; i < patient.readings.size(); ++i) {
            if (!isNew.has(i)) {
                ++counts.known;
                continue;
            }
            last = insertElement<ReadingModel>(root, last);
            write(patient.readings[i], last);
            recorder.added(last);
            ++counts.readings;
        }
    }

    /// With the offset that the table has, which says what the monitor's clock showed.
    void write(ReadingModel reading, pugi::xml_node element) {
        const QString date = tableTimeText(*reading.ReadingDate, reading.utcOffset, zone);
        reading.ReadingDate.reset(); // to write it takes longest
        reading.RecID = numbers.numberFor(reading.RecID);
        reading.updateXMLNode(element);
        setElementText(firstElement(element, "ReadingDate"), date);
        ReadingModel plain = reading;
        plain.exclusion = QString{};
        plain.isManual = false;
        reading.changeXMLNode(element, plain);
    }

    void addComments(const TablePatient& patient) {
        if (patient.comments.empty()) return;
        Records counters;
        std::set<std::tuple<DayNumber, DayNumber, std::uint32_t, QString>> there;
        for (const pugi::xml_node node : root.children()) {
            if (!isElement(node, "Comment")) continue;
            const auto known = CommentModel::initWithXMLNode(node, zone);
            counters.countID(Records::Counter::comment, known.CommentID);
            if (known.ID == patient.ID)
                there.emplace(known.beginDay, known.endDay, known.degree, known.comment);
        }
        for (const auto& given : patient.comments) {
            CommentModel comment = *given;
            if (there.contains({comment.beginDay, comment.endDay, comment.degree, comment.comment})) continue;
            comment.CommentID = counters.getMaxID(Records::Counter::comment);
            counters.countID(Records::Counter::comment, comment.CommentID);
            const pugi::xml_node made = insertElement<CommentModel>(root, lastElement(root, "Comment"));
            comment.updateXMLNode(made);
            recorder.added(made);
            ++counts.comments;
        }
    }

    pugi::xml_node root;
    const ReadingTable& table;
    StepRecorder& recorder;
    ImportCounts& counts;
    ReadingNumbers numbers;
    LocalZone zone;
};

/// A patient who is added to is in the list, with these names unless the table has none; any other is not.
std::optional<ImportRefusal> tableFault(pugi::xml_node root, const TablePatient& patient, const QString& path,
                                        bool isAddedTo) {
    using Code = ImportRefusalCode;
    const pugi::xml_node known = findElement(root, "Patient", "ID", patient.ID);
    if (!isAddedTo) {
        if (!known) return {};
        return ImportRefusal{Code::alreadyKnown, path, patient.ID, {}};
    }
    if (!known) return ImportRefusal{Code::noSuchPatient, path, patient.ID, {}};
    const auto isSame = [known](const QString& name, const char* child) {
        return name.simplified() == childText(known, child).simplified();
    };
    const bool hasNames = !patient.familyName.isEmpty() || !patient.givenNames.isEmpty();
    if (hasNames && !(isSame(patient.familyName, "FamilyName") && isSame(patient.givenNames, "GivenNames")))
        return ImportRefusal{Code::otherNames, path, patient.ID, {}};
    return {};
}

} // namespace

std::optional<ImportRefusal> mergeTable(pugi::xml_node root, ReadingTable table, const QString& path,
                                        const TableImport& wanted, StepRecorder& recorder,
                                        ImportCounts& counts) {
    for (const TablePatient& patient : table.patients)
        if (const auto fault = tableFault(root, patient, path, !wanted.patient.isEmpty())) return fault;
    TableMerge merge{root, table, recorder, counts};
    for (const TablePatient& patient : table.patients)
        merge.add(patient);
    return {};
}

} // namespace zel
