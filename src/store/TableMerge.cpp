#include "store/DocumentElements.h"
#include "store/NewReadings.h"
#include "store/ReadingTable.h"
#include "store/Records.h"
#include "store/TableMatches.h"

#include <QSet>

#include <algorithm>
#include <set>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

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
        QString number = isNumber(wished) && !taken.contains(wished) ? wished : counters.getMaxID(kind);
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
        const TableMatches matches{root, patient, table.isForeign};
        leaveOutTypedOnes(patient, matches);
        addReadings(patient, matches);
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
    void leaveOutTypedOnes(const TablePatient& patient, const TableMatches& matches) {
        ReadingList measured;
        for (std::size_t i = 0; i < patient.readings.size(); ++i) {
            const ReadingModel& reading = patient.readings[i];
            if (matches.isNew(i) && !reading.isManual && !reading.isExcluded()) measured.push_back(reading);
        }
        for (const pugi::xml_node element : typedMeanwhileMeasured(root, patient.ID, measured)) {
            recorder.willChange(element);
            leaveOutAsMeasured(element);
            ++counts.leftOut;
        }
    }

    void addReadings(const TablePatient& patient, const TableMatches& matches) {
        pugi::xml_node last = placeForReadings(root, patient.ID);
        for (std::size_t i = 0; i < patient.readings.size(); ++i) {
            if (!matches.isNew(i)) {
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

std::optional<ImportRefusal> mergeTable(pugi::xml_node root, const ReadingTable& table, const QString& path,
                                        const TableImport& wanted, StepRecorder& recorder,
                                        ImportCounts& counts) {
    for (const TablePatient& patient : table.patients)
        if (auto fault = tableFault(root, patient, path, !wanted.patient.isEmpty())) return fault;
    TableMerge merge{root, table, recorder, counts};
    for (const TablePatient& patient : table.patients)
        merge.add(patient);
    return {};
}

} // namespace zel
