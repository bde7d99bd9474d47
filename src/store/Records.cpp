#include "store/Records.h"

#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/Text.h"

#include <QCollator>
#include <QSet>

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The words for one kind of record in the log.
struct Kind {
    const char* name;
    const char* newListEnd = "";
};

template <class List>
List* listFor(std::unordered_map<QString, List>& index, const QString& ID, const Kind& kind) {
    if (IsEmptyID(ID)) {
        qCWarning(lcStore, "error: add %s for empty ID", kind.name);
        return nullptr;
    }
    const auto [entry, isNew] = index.try_emplace(ID);
    if (isNew)
        qCDebug(lcStore, "new Mutable Array %s for ID %s%s", kind.name, qUtf8Printable(ID), kind.newListEnd);
    return &entry->second;
}

void sortByName(std::vector<PatientModel>& patients) {
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(patients, [&collator](const PatientModel& a, const PatientModel& b) {
        const int order = collator.compare(a.DisplayName, b.DisplayName);
        return order < 0 || (order == 0 && a.ID < b.ID);
    });
}

void sortByBegin(CommentList& comments) {
    std::ranges::stable_sort(comments, {}, [](const auto& comment) { return comment->beginDate; });
}

/// A comment that has no number, or an earlier one's, gets a key of its own, the same with every load.
void tellApart(const CommentList& comments) {
    QSet<QString> known{QString()};
    std::vector<CommentModel*> unclear;
    for (const auto& comment : comments) {
        if (known.contains(comment->CommentID)) unclear.push_back(comment.get());
        known.insert(comment->CommentID);
    }
    int number = 0;
    for (CommentModel* comment : unclear) {
        QString key;
        do
            key = u"#%1"_s.arg(++number);
        while (known.contains(key));
        comment->fileNumber = std::exchange(comment->CommentID, key);
    }
}

Records::ReadingCounts countReadings(pugi::xml_node root) {
    std::unordered_map<std::string, std::size_t> readings;
    std::pair<const std::string, std::size_t>* last = nullptr;
    std::string scratch;
    for (const pugi::xml_node node : root.children()) {
        if (!isElement(node, "MeasureRec")) continue;
        const std::string_view ID = elementText(firstElement(node, "ID"), scratch);
        if (!last || last->first != ID) last = &*readings.try_emplace(std::string(ID)).first;
        ++last->second;
    }
    Records::ReadingCounts counts;
    for (const auto& [ID, count] : readings)
        counts.emplace(toQString(ID), count);
    return counts;
}

/// One record by its element's name; elements that are none of these are left alone.
void readRecord(Records& records, pugi::xml_node element, const LocalZone& zone,
                const Records::ReadingCounts& counts) {
    if (element.type() != pugi::node_element) return;
    const std::string_view name{element.name()};
    if (name == "MeasureRec") {
        records.addReading(ReadingModel::initWithXMLNode(element), zone, counts);
    } else if (name == "Patient") {
        records.gaPatient.push_back(PatientModel::initWithXMLNode(element));
    } else if (name == "Comment") {
        records.addComment(CommentModel::initWithXMLNode(element, zone));
    } else if (name == "DataTransferLog") {
        records.addDataLog(DataTransferLogModel::initWithXMLNode(element, zone));
    }
}

void logCounts(const Records& records) {
    std::size_t count = 0;
    for (const auto& [ID, list] : records.mdReading)
        count += list.size();
    qCDebug(lcStore, "itemNodes = %zu", records.gaPatient.size());
    qCInfo(lcStore, "reading itemNodes count = %zu", count);
}

void linkAll(Records& records) {
    for (auto& [ID, comments] : records.mdComment) {
        tellApart(comments);
        sortByBegin(comments);
        if (const auto found = records.mdReading.find(ID); found != records.mdReading.end()) {
            setCommentInReading(comments, found->second);
        }
    }
    for (const auto& [ID, log] : records.mdDataLog) {
        if (const auto found = records.mdReading.find(ID); found != records.mdReading.end()) {
            setDataLogInReading(log, found->second);
        }
    }
}

} // namespace

Records Records::read(pugi::xml_node root, const LocalZone& zone) {
    Records records;
    // Readings are placed by the settings, wherever in the file these stand.
    if (const pugi::xml_node setting = firstElement(root, "SystemSetting")) {
        records.gSettingModel = SettingModel::initWithXMLNode(setting);
        records.hasSetting = true;
    }
    // Growing lists would take the memory of twice as many for a moment, and move each record several times.
    records.gaPatient.reserve(static_cast<std::size_t>(std::ranges::count_if(
        root.children(), [](pugi::xml_node node) { return isElement(node, "Patient"); })));
    const ReadingCounts counts = countReadings(root);
    for (pugi::xml_node element = root.first_child(); element; element = element.next_sibling()) {
        readRecord(records, element, zone, counts);
    }
    sortByName(records.gaPatient);
    logCounts(records);
    linkAll(records);
    return records;
}

QString Records::getMaxID(Counter kind) const {
    return IncreaseID(QString::number(largestID.at(static_cast<std::size_t>(kind))));
}

void Records::countID(Counter kind, const QString& number) {
    if (number.isEmpty()) {
        qCDebug(lcStore, "error no RecID\n");
        return;
    }
    countID(kind, leadingInteger(number));
}

void Records::countID(Counter kind, std::int64_t number) {
    // Larger ones are no counter's, and counting on from them would soon end.
    constexpr std::int64_t largestTaken = std::int64_t{1} << 53;
    std::int64_t& largest = largestID.at(static_cast<std::size_t>(kind));
    if (number < largestTaken) largest = std::max(largest, number);
}

const ReadingList& Records::readingsOf(const QString& ID) const {
    static const ReadingList none;
    const auto found = mdReading.find(ID);
    return found == mdReading.end() ? none : found->second;
}

void Records::addReading(ReadingModel reading, const LocalZone& zone, const ReadingCounts& expected) {
    if (const auto number = reading.RecID.number()) // without making a text of it again
        countID(Counter::reading, *number);
    else
        countID(Counter::reading, reading.RecID.text());
    ReadingList* list = listFor(mdReading, reading.ID, {"reading", " "});
    if (!list) return;
    if (list->empty()) {
        if (const auto found = expected.find(reading.ID); found != expected.end())
            list->reserve(found->second);
    }
    // One text for all of a patient's readings.
    if (!list->empty()) reading.ID = list->back().ID;
    reading.postInit(list->empty() ? nullptr : &list->back(), gSettingModel, zone);
    list->push_back(std::move(reading));
}

void Records::addComment(CommentModel comment) {
    countID(Counter::comment, comment.CommentID);
    CommentList* list = listFor(mdComment, comment.ID, {"comment"});
    if (list) list->push_back(std::make_unique<CommentModel>(std::move(comment)));
}

void Records::addDataLog(DataTransferLogModel entry) {
    countID(Counter::dataLog, entry.RecID);
    DataLogList* list = listFor(mdDataLog, entry.ID, {"data log"});
    if (list) list->push_back(std::move(entry));
}

} // namespace zel
