#include "SampleReport.h"

#include <QString>

namespace zel {

using namespace Qt::StringLiterals;

Instant noonOf(const char* day) {
    return *StrToDate(QLatin1StringView(day) + u" 12:00"_s, u"yyyy-MM-dd HH:mm"_s);
}

SampleReport::SampleReport(int readingTotal, int commentTotal) {
    patient.ID = u"P-17"_s;
    patient.GivenNames = u"Ada"_s;
    patient.FamilyName = u"Byron"_s;
    patient.Address = u"1 Long Lane\nOldtown"_s;
    patient.DateOfBirth = noonOf("1960-05-02");
    patient.Weight = 71.5F;
    patient.Height = 168;
    patient.Cholestrol = 190;
    patient.PatientNotes = u"Takes her tablets after breakfast."_s;
    settings.dateFormat = u"yyyy mm dd"_s;
    settings.timeFormat = u"24-hours"_s;
    settings.physicianAddress = u"Dr. Moreau\nSea Road 3"_s;
    settings.sysStandard = 140;
    settings.diaStandard = 90;
    selection = {
        {DateToDayBoundary(noonOf("2019-01-01"), true), DateToDayBoundary(noonOf("2019-12-31"), false)},
        ViewSelection::viewAll};
    const Instant first = noonOf("2019-01-01");
    for (int i = 0; i < readingTotal; ++i) {
        ReadingModel reading;
        reading.ReadingDate = first + std::chrono::hours(12 * i) + std::chrono::minutes(i % 60);
        const auto step = static_cast<std::uint32_t>(i);
        reading.sys = 100 + step * 7 % 80;
        reading.dia = 60 + step * 5 % 50;
        reading.pulse = 50 + step * 3 % 60;
        reading.map = (reading.sys + 2 * reading.dia) / 3;
        reading.pp = reading.sys - reading.dia;
        reading.Arrhythmia = 4 + step % 9 / 8;
        reading.mam = step % 2;
        reading.postInit(readings.empty() ? nullptr : &readings.back(), settings, zone);
        readings.push_back(reading);
    }
    for (int i = 0; i < commentTotal; ++i)
        addComment("2019-02-01", "2019-02-03", 1 + static_cast<std::uint32_t>(i) % 4, u"Felt dizzy."_s);
    DataTransferLogModel& download = downloads.emplace_back();
    download.transferDate = noonOf("2019-01-20");
    download.transferDay = zone.day(download.transferDate);
}

void SampleReport::addComment(const char* begin, const char* end, std::uint32_t degree, const QString& text) {
    auto comment = std::make_unique<CommentModel>();
    comment->degree = degree;
    comment->beginDate = DateToDayBoundary(noonOf(begin), true);
    comment->endDate = DateToDayBoundary(noonOf(end), false);
    comment->beginDay = zone.day(comment->beginDate);
    comment->endDay = zone.day(comment->endDate);
    comment->comment = text;
    comments.push_back(std::move(comment));
}

PrintView SampleReport::view(QPageSize::PageSizeId paper) const {
    ReportSource source{.patient = patient,
                        .readings = readings,
                        .comments = comments,
                        .downloads = downloads,
                        .settings = settings,
                        .selection = selection,
                        .rows = assembleReadingRows({readings, comments, downloads, selection}, zone),
                        .highFrom = highFrom,
                        .now = noonOf("2020-01-15"),
                        .weekRule = weekRule,
                        .weekEnd = weekEnd,
                        .isDemonstration = isDemonstration,
                        .needPhysicianInfo = needPhysicianInfo,
                        .getShowMam = getShowMam,
                        .getShowPad = getShowPad,
                        .getIsAfib = getIsAfib};
    return {std::move(source), QPageSize(paper)};
}

std::vector<Section> allSections() {
    std::vector<Section> all;
    for (const SectionFacts& row : sections())
        all.push_back(row.section);
    return all;
}

std::vector<TextLine> textsOf(const Picture& picture) {
    std::vector<TextLine> texts;
    for (const PictureItem& item : picture)
        if (const auto* line = std::get_if<TextLine>(&item)) texts.push_back(*line);
    return texts;
}

} // namespace zel
