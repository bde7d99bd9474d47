#include "store/TypedTime.h"

#include "store/SettingModel.h"
#include "support/RealTexts.h"

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

TEST(TypedTime, aTimeOfDayIsTakenAsItIsOrNotAtAll) {
    constexpr bool full = false, half = true;
    const struct {
        bool is12Hours;
        QString text;
        QString time; ///< null: none
    } cases[]{{full, u"08:05"_s, u"08:05"_s},
              {full, u" 8.05 "_s, u"08:05"_s},
              {full, u"0805"_s, u"08:05"_s},
              {full, u"23:59"_s, u"23:59"_s},
              {full, u"8:05 pm"_s, u"20:05"_s},
              {full, u"24:00"_s, {}},
              {full, u"08:60"_s, {}},
              {full, u"8:5"_s, {}},
              {full, u"805"_s, {}},
              {full, u"8"_s, {}},
              {full, u"08:05:30"_s, {}},
              {full, u"-8:05"_s, {}},
              {full, u"8:05 x"_s, {}},
              {full, QString(), {}},
              {half, u"8:05 A"_s, u"08:05"_s},
              {half, u"8:05p.m."_s, u"20:05"_s},
              {half, u"P8:05"_s, u"20:05"_s},
              {half, u"12:05 AM"_s, u"00:05"_s},
              {half, u"12:05 p"_s, u"12:05"_s},
              {half, u"20:05"_s, u"20:05"_s},
              {half, u"00:05"_s, u"00:05"_s},
              {half, u"8:05"_s, {}},
              {half, u"12:05"_s, {}},
              {half, u"20:05 P"_s, {}},
              {half, u"a 8:05 p"_s, {}}};
    for (const auto& each : cases)
        EXPECT_EQ(typedTimeOfDay(each.text, each.is12Hours).toString(u"HH:mm"_s), each.time)
            << qPrintable(each.text);
}

TEST(TypedTime, aTimeAsItIsShownIsReadAgainInEveryLanguage) {
    SettingModel settings;
    for (const Language& language : languages()) {
        const RealTexts texts(language);
        for (const char* format : {"12-hours", "24-hours"}) {
            settings.timeFormat = QLatin1String(format);
            for (const int minute : {0, 5, 8 * 60 + 5, 12 * 60, 20 * 60 + 5}) {
                const QString shown = settings.timeText(minute);
                EXPECT_EQ(typedTimeOfDay(shown, settings.is12Hours()), QTime(minute / 60, minute % 60))
                    << qPrintable(shown);
            }
        }
    }
}

} // namespace zel
