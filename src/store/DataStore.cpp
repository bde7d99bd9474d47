#include "store/DataStore.h"

#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/PressureLimits.h"
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

tl::expected<Records, StoreError> readAll(const DataFile& file) {
    return file.read().map(
        [](const XmlDocument& document) { return Records::read(document.root(), LocalZone{}); });
}

} // namespace

DataStore::DataStore(StorePaths paths, Clock& wallClock)
    : file{std::move(paths), wallClock}, clock{wallClock} {}

StoreResult DataStore::load() {
    prepareLoad();
    return loadXML();
}

void DataStore::prepareLoad() {
    file.checkAndMakeTargetFile();
    backups().removeDead();
    loadViewLimits();
}

std::future<DataStore::Read> DataStore::beginLoad() {
    prepareLoad();
    const StoreResult isThere = file.checkXMLFileExist();
    if (isThere) lastSeen = file.stamp();
    // Where no thread can be started, it is read when it is asked for.
    return std::async([this, isThere] { return isThere.and_then([this] { return readAll(file); }); });
}

StoreResult DataStore::finishLoad(std::future<Read> reading) { return tellLoaded(takeRead(reading.get())); }

void DataStore::loadViewLimits() {
    const auto read = readViewLimits(getZELXMLPath());
    limitsSeen = highFrom = read.value_or(ViewLimits{});
    highFromRead = read ? StoreResult{} : tl::unexpected{read.error()};
}

/// What another program chose since; what was chosen here stays where it could not be written.
void DataStore::takeViewLimits() {
    const auto read = readViewLimits(getZELXMLPath());
    if (!read || *read == limitsSeen) return;
    limitsSeen = highFrom = *read;
    highFromRead = {};
    emit viewLimitsChanged();
}

StoreResult DataStore::chooseViewLimits(const ViewLimits& chosen) {
    if (limitProblem(chosen.own.sys, chosen.own.dia))
        return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, {}, {}}};
    ViewLimits laid = chosen;
    const auto read = readViewLimits(getZELXMLPath());
    if (read && *read != limitsSeen) { // only what was changed here is laid over what another program chose
        if (chosen.choice == highFrom.choice) laid.choice = read->choice;
        if (chosen.own == highFrom.own) laid.own = read->own;
    }
    highFrom = laid;
    highFromRead = {};
    emit viewLimitsChanged();
    auto written = writeViewLimits(getZELXMLPath(), laid);
    if (written) limitsSeen = laid;
    return written;
}

StoreResult DataStore::loadXML() { return tellLoaded(readRecords()); }

StoreResult DataStore::tellLoaded(StoreResult how) {
    loaded = std::move(how);
    emit reloaded();
    takeViewLimits();
    return loaded;
}

StoreResult DataStore::readRecords() {
    return takeRead(file.checkXMLFileExist().and_then([this] {
        lastSeen = file.stamp(); // before it is read: a change meanwhile is seen as one
        return readAll(file);
    }));
}

StoreResult DataStore::takeRead(Read read) {
    if (!read) {
        qCWarning(lcStore, "nodesForXPath failed %s", qUtf8Printable(read.error().detail));
        const SettingModel settings = records.gSettingModel;
        records = Records{};
        records.gSettingModel = settings;
        return tl::unexpected{read.error()};
    }
    take(std::move(*read));
    return {};
}

bool DataStore::isChangedElsewhere() const { return isChangedElsewhere(file.stamp()); }

StoreResult DataStore::takeChanges() {
    const FileStamp now = file.stamp();
    if (damaged && damaged->first == now) return tl::unexpected{damaged->second};
    auto read = readAll(file);
    if (!read) {
        if (read.error().code == StoreErrorCode::notParsed) damaged = {now, read.error()};
        return tl::unexpected{read.error()};
    }
    lastSeen = now;
    take(std::move(*read));
    return tellLoaded({});
}

void DataStore::take(Records read) {
    records = std::move(read);
    keepSelectedComment();
    if (!records.hasSetting) {
        pugi::xml_document defaults;
        records.gSettingModel = SettingModel::initWithXMLNode(SettingModel::makeXmlNode(defaults));
        // The file gains the settings now if it can; a read-only one is reported by checkXmlWritable.
        StoreResult kept;
        std::ignore = write([&](pugi::xml_node root) {
            if (firstElement(root, "SystemSetting")) return DataFile::Edit::unchanged;
            SettingModel::makeXmlNode(root);
            kept = copies.keepDaily();
            return DataFile::Edit::changed;
        });
        if (!kept) tellNotBackedUp(kept.error());
    }
    settingAsRead = records.gSettingModel;
}

void DataStore::keepSelectedComment() {
    bool isFound = false;
    for (const auto& [ID, comments] : records.mdComment) {
        for (const auto& comment : comments) {
            comment->isSelected = !isFound && !selectedCommentID.isNull() && ID == selectedPatientID
                                  && comment->CommentID == selectedCommentID;
            isFound = isFound || comment->isSelected;
        }
    }
    if (!isFound) selectedCommentID = QString{};
    qCDebug(lcStore, "isSelected %s", isFound ? "YES" : "FALSE");
}

QString DataStore::getZELXMLPath() const { return file.getZELXMLPath(); }
QString DataStore::getTargetString() const { return file.getTargetString(); }

bool DataStore::checkXmlWritable(MessagePanel& panel) const {
    if (file.isWritable()) return true;
    panel.ShowMessage(qtTrId("XmlNotWritable"), qtTrId("Warning"));
    return false;
}

QString DataStore::getMaxID(Counter kind) const { return records.getMaxID(kind); }

void DataStore::setSelectedComment(const QString& commentID) {
    selectedCommentID = commentID;
    selectedPatientID = currentID;
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

const ReadingList& DataStore::getReadingForCurID() const { return records.readingsOf(currentID); }

const ReadingList& DataStore::getReadingForID(const QString& ID) const { return records.readingsOf(ID); }

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
