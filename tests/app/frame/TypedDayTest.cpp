#include "app/frame/ReadingFrame.h"
#include "support/ReadingPageTest.h"

#include <QLineEdit>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using TypedDayTest = ReadingPageTest;

} // namespace

TEST_F(TypedDayTest, aDayIsTakenAsItIsOrRefusedInWordsHoweverTheFieldIsEntered) {
    storeYear();
    open(new ReadingFrame({store, period, panel, clock}, *new QWidget, nullptr));
    const QString dayFirst = u"dd mm yyyy"_s, monthFirst = u"mm dd yyyy"_s, yearFirst = u"yyyy mm dd"_s;
    const struct {
        QString format, text;
        QString begin; ///< as it is shown then; null: refused
    } cases[]{{dayFirst, u"05/10/2025"_s, u"05/10/2025"_s},
              {dayFirst, u"5/10/2025"_s, u"05/10/2025"_s},
              {dayFirst, u"05102025"_s, u"05/10/2025"_s},
              {dayFirst, u"5.10.2025"_s, u"05/10/2025"_s},
              {dayFirst, u"5-10-2025"_s, u"05/10/2025"_s},
              {dayFirst, u"31/02/2026"_s, {}},
              {dayFirst, u"5/10/25"_s, {}},
              {dayFirst, u"05/10/0206"_s, {}},
              {dayFirst, u"05/10"_s, {}},
              {monthFirst, u"05/10/2025"_s, u"05/10/2025"_s},
              {monthFirst, u"05102025"_s, u"05/10/2025"_s},
              {monthFirst, u"13/10/2025"_s, {}},
              {monthFirst, u"5.10.2025"_s, {}}, // or 5 October?
              {yearFirst, u"20251005"_s, u"2025/10/05"_s},
              {yearFirst, u"05/10/2025"_s, {}}};
    auto& field = find<QLineEdit>("beginDay");
    for (const auto& [format, text, begin] : cases) {
        store.getSetting().dateFormat = format;
        ASSERT_TRUE(store.saveSetting() && store.loadXML());
        for (const char* entered : {"click", "Tab", "Shift+Tab", "Ctrl+A"}) {
            clickPart("viewAll");
            const QString before = field.text();
            enter(field, entered);
            QTest::keyClicks(&field, text);
            QTest::keyClick(&field, Qt::Key_Return);
            EXPECT_EQ(field.text(), begin.isNull() ? before : begin) << entered << qPrintable(text);
            const Date picked = StrToDate(field.text(), store.getSetting().shownDateFormat());
            EXPECT_TRUE(period.getTimePeriod().begin == DateToDayBoundary(*picked, true));
            const QString why =
                qtTrId("dayUnreadLeft").arg(text, store.getSetting().shownDateFormat().toUpper());
            EXPECT_EQ(panel.messages,
                      begin.isNull() ? QStringList(qtTrId("DateError") + u": "_s + why) : QStringList());
            panel.messages.clear();
        }
    }
    typeDay("weekEnd", u"31022026"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(dayIn("weekEnd"), u"2026/03/20"_s);
    EXPECT_EQ(panel.messages.size(), 1);
}

} // namespace zel
