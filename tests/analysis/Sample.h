#pragma once

#include "analysis/ReadingRows.h"

#include <QStringList>

namespace zel {

/// "yyyy-MM-dd HH:mm:ss", the seconds, or the time too, left out where they are 0.
inline Instant at(const char* text) {
    using namespace Qt::StringLiterals;
    const QString whole = QString::fromLatin1(text);
    return StrToDate(whole + u" 00:00:00"_s.mid(whole.size() - 10), u"yyyy-MM-dd HH:mm:ss"_s).value();
}

inline ReadingModel readingAt(const char* text, std::uint32_t sys = 120, std::uint32_t dia = 80) {
    ReadingModel reading;
    reading.ReadingDate = at(text);
    reading.sys = sys;
    reading.dia = dia;
    reading.pulse = 60;
    reading.postInit(nullptr, {}, LocalZone{});
    return reading;
}

inline ReadingList readingsAt(std::initializer_list<const char*> dates) {
    ReadingList readings;
    for (const char* date : dates)
        readings.push_back(readingAt(date));
    return readings;
}

inline ReadingSelection during(const char* from, const char* to) {
    return {.period = {at(from), DateToDayBoundary(at(to), false)}};
}

/// Of one patient, in 2019 unless told otherwise.
struct Sample {
    ReadingList readings;
    CommentList comments;
    DataLogList downloads;
    ReadingSelection selection = during("2019-01-01", "2019-12-31");

    void comment(const char* from, const char* to) {
        CommentModel& comment = *comments.emplace_back(std::make_unique<CommentModel>());
        comment.beginDate = at(from);
        comment.endDate = at(to);
        comment.beginDay = LocalZone{}.day(comment.beginDate);
        comment.endDay = LocalZone{}.day(comment.endDate);
    }
    void download(const char* date) { downloads.emplace_back().transferDay = LocalZone{}.day(at(date)); }

    [[nodiscard]] ReadingRows rows() const {
        return assembleReadingRows({readings, comments, downloads, selection}, LocalZone{});
    }
    /// A word for each row: "MM-dd/HH:mm", for a placeholder in brackets.
    [[nodiscard]] std::string words() const {
        using namespace Qt::StringLiterals;
        QStringList all;
        for (const ReadingRow& row : rows().rows) {
            const QString date = DateToStr(row.ReadingDate, u"MM-dd/HH:mm"_s);
            all += row.isNA() ? u'(' + date + u')' : date;
        }
        return all.join(u' ').toStdString();
    }
};

} // namespace zel
