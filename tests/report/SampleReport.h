#pragma once

#include "report/PrintView.h"

#include <vector>

namespace zel {

/// A patient with readings twice a day from 1 January 2019 on, for tests to spoil.
struct SampleReport {
    PatientModel patient;
    ReadingList readings;
    CommentList comments;
    DataLogList downloads;
    SettingModel settings = SettingModel::initWithDefault();
    ReadingSelection selection;
    LimitPair highFrom; ///< none
    AverageRule weekRule = AverageRule::esh;
    std::optional<DayNumber> weekEnd;
    bool isDemonstration = false;
    bool needPhysicianInfo = true;
    bool getShowMam = true;
    bool getShowPad = true;
    bool getIsAfib = true;
    LocalZone zone;

    /// Every value occurs once in the table: nothing stands for something else.
    explicit SampleReport(int readingTotal = 0, int commentTotal = 0);
    void addComment(const char* begin, const char* end, std::uint32_t degree, const QString& text);
    [[nodiscard]] PrintView view(QPageSize::PageSizeId paper = QPageSize::A4) const;
};

/// Noon of a day given as yyyy-MM-dd.
[[nodiscard]] Instant noonOf(const char* day);
[[nodiscard]] std::vector<Section> allSections();
[[nodiscard]] std::vector<TextLine> textsOf(const Picture& picture);

} // namespace zel
