#pragma once

#include "store/PatientModel.h"
#include "store/RecordLinks.h"
#include "store/SettingModel.h"

#include <QHash>
#include <QString>

#include <pugixml.hpp>

#include <unordered_map>
#include <vector>

namespace zel {

/// All records of the document in memory, with the per-patient indexes.
struct Records {
    std::vector<PatientModel> gaPatient;                ///< sorted by DisplayName
    std::unordered_map<QString, ReadingList> mdReading; ///< by patient ID, in document order
    std::unordered_map<QString, CommentList> mdComment; ///< by patient ID, sorted by beginDate
    std::unordered_map<QString, DataLogList> mdDataLog; ///< by patient ID, in document order
    SettingModel gSettingModel = SettingModel::initWithDefault();
    bool hasSetting = false; ///< the document held a SystemSetting element

    /// Reads all records below the root element ZEL and links them. \p zone is the computer's.
    [[nodiscard]] static Records read(pugi::xml_node root, const LocalZone& zone);

    // One record into its index. A record without a patient's ID is logged and dropped. Readings are added
    // in the order in which they are shown: each is placed after the one before it.
    void addReading(ReadingModel reading, const LocalZone& zone);
    void addComment(CommentModel comment);
    void addDataLog(DataTransferLogModel entry);
};

} // namespace zel
