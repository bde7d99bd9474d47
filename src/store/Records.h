#pragma once

#include "store/PatientModel.h"
#include "store/RecordLinks.h"
#include "store/SettingModel.h"

#include <QHash>
#include <QString>

#include <pugixml.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
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

    /// Record numbers count apart by kind, from a floor of their own.
    enum class Counter { dataLog = 0, reading = 1, comment = 2 };
    /// The largest number in use, also by records that are not in the indexes.
    std::array<std::int64_t, 3> largestID{100000, 1000000, 10000};
    /// The next free record number.
    [[nodiscard]] QString getMaxID(Counter kind) const;
    /// Notes a number that is in use.
    void countID(Counter kind, const QString& number);
    void countID(Counter kind, std::int64_t number);

    /// Reads all records below the root element ZEL and links them. \p zone is the computer's.
    [[nodiscard]] static Records read(pugi::xml_node root, const LocalZone& zone);

    // One record into its index. A record without a patient's ID is logged and dropped. Readings are added
    // in the order in which they are shown: each is placed after the one before it.
    // \p expected: how many there will be of each patient; room is made for them at the first one.
    using ReadingCounts = std::unordered_map<QString, std::size_t>;
    void addReading(ReadingModel reading, const LocalZone& zone, const ReadingCounts& expected);
    void addComment(CommentModel comment);
    void addDataLog(DataTransferLogModel entry);

    [[nodiscard]] const ReadingList& readingsOf(const QString& ID) const;
};

} // namespace zel
