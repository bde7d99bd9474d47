#include "store/DataStore.h"

#include "store/Log.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

template <class List>
const List& listOf(const std::unordered_map<QString, List>& index, const QString& ID) {
    static const List none;
    const auto found = index.find(ID);
    return found == index.end() ? none : found->second;
}

} // namespace

DataStore::DataStore(StorePaths paths, const Clock& wallClock) : file{std::move(paths)}, clock{wallClock} {}

StoreResult DataStore::load() {
    file.checkAndMakeTargetFile();
    return loadXML();
}

StoreResult DataStore::loadXML() {
    StoreResult result = readRecords();
    emit reloaded();
    return result;
}

StoreResult DataStore::readRecords() {
    file.checkXMLFileExist();
    const auto document = file.read();
    if (!document) {
        qCWarning(lcStore, "nodesForXPath failed %s", qUtf8Printable(document.error().detail));
        const SettingModel settings = records.gSettingModel;
        records = Records{};
        records.gSettingModel = settings;
        return tl::unexpected{document.error()};
    }
    records = Records::read(document->root(), LocalZone{});
    keepSelectedComment();
    if (records.hasSetting) return {};
    pugi::xml_document defaults;
    records.gSettingModel = SettingModel::initWithXMLNode(SettingModel::makeXmlNode(defaults));
    // The file gains the settings now if it can; a read-only one is reported by checkXmlWritable.
    std::ignore = saveSetting();
    return {};
}

void DataStore::keepSelectedComment() {
    bool isFound = false;
    for (const auto& [ID, comments] : records.mdComment) {
        for (const auto& comment : comments) {
            comment->isSelected = !selectedCommentID.isNull() && comment->CommentID == selectedCommentID;
            isFound = isFound || comment->isSelected;
        }
    }
    if (!isFound) selectedCommentID = QString{};
    qCDebug(lcStore, "isSelected %s", isFound ? "YES" : "FALSE");
}

QString DataStore::getZELXMLPath() const { return file.getZELXMLPath(); }
QString DataStore::getZELXMLPath_Old() const { return file.getZELXMLPath_Old(); }
QString DataStore::getTargetString() const { return file.getTargetString(); }

int DataStore::getPatientCount(const QString& path) {
    const auto document = DataFile::readDocument(path);
    if (!document) return 0;
    const auto patients = document->root().children("Patient");
    return static_cast<int>(std::distance(patients.begin(), patients.end()));
}

bool DataStore::checkXmlWritable(MessagePanel& panel) const {
    if (file.isWritable()) return true;
    panel.ShowMessage(qtTrId("XmlNotWritable"), qtTrId("Warning"));
    return false;
}

QString DataStore::getMaxID(Counter kind) const {
    std::int64_t most = 0;
    const auto count = [&most](const QString& number) {
        if (number.isEmpty()) {
            qCInfo(lcStore, "error no RecID\n");
        } else {
            most = std::max(most, leadingInteger(number.toStdString()));
        }
    };
    const auto countAll = [&count](const auto& index, const auto& number) {
        for (const auto& [ID, list] : index) {
            for (const auto& record : list)
                count(number(record));
        }
    };
    switch (kind) {
    case Counter::dataLog:
        most = 100000;
        countAll(records.mdDataLog, [](const DataTransferLogModel& entry) { return entry.RecID; });
        break;
    case Counter::reading:
        most = 1000000;
        countAll(records.mdReading, [](const ReadingModel& reading) { return reading.RecID; });
        break;
    case Counter::comment:
        most = 10000;
        countAll(records.mdComment, [](const auto& comment) { return comment->CommentID; });
        break;
    }
    return IncreaseID(QString::number(most));
}

void DataStore::setSelectedComment(const QString& commentID) {
    selectedCommentID = commentID;
    keepSelectedComment();
}

const CommentModel* DataStore::getSelectedComment() const {
    for (const auto& comment : getCommentForCurID()) {
        if (comment->isSelected) return comment.get();
    }
    return nullptr;
}

void DataStore::setCurrentID(const QString& ID) {
    if (ID == currentID) return;
    currentID = ID;
    emit currentIDChanged();
}

const QString& DataStore::getCurrentID() const { return currentID; }

const ReadingList& DataStore::getReadingForCurID() const { return listOf(records.mdReading, currentID); }
const CommentList& DataStore::getCommentForCurID() const { return listOf(records.mdComment, currentID); }
const DataLogList& DataStore::getTrasferLogForCurID() const { return listOf(records.mdDataLog, currentID); }

const std::vector<PatientModel>& DataStore::getPatientArray() const { return records.gaPatient; }

const PatientModel* DataStore::getPatientByID(const QString& ID) const {
    const auto found = std::ranges::find(records.gaPatient, ID, &PatientModel::ID);
    return found == records.gaPatient.end() ? nullptr : &*found;
}

bool DataStore::validIDinXML(const QString& ID) const { return getPatientByID(ID) != nullptr; }

SettingModel& DataStore::getSetting() { return records.gSettingModel; }
const SettingModel& DataStore::getSetting() const { return records.gSettingModel; }

} // namespace zel
