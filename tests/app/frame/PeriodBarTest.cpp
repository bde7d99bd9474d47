#include "app/frame/ReadingFrame.h"
#include "support/ReadingPageTest.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PeriodBarTest : public ReadingPageTest {
protected:
    void openYear() {
        storeYear();
        open(new ReadingFrame({store, period, panel}, *new QWidget, nullptr));
    }
    /// Average, lowest and highest systolic pressure in the figures beside.
    QString systolic() {
        static const QRegularExpression number(u"\\d+"_s);
        const QString spoken = page("statisticView").accessibleDescription().section(u'\n', 0, 0);
        QStringList values;
        for (const auto& match : number.globalMatch(spoken))
            values += match.captured();
        return values.join(u' ');
    }
};

} // namespace

TEST_F(PeriodBarTest, thePeriodIsPickedByDaysOrByViewChoice) {
    openYear();
    const auto& am = find<QRadioButton>("amOnly");
    const auto& undated = find<QCheckBox>("btnAverage");
    EXPECT_EQ(dayIn("beginDay"), u"20/12/2025"_s);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_EQ(systolic(), u"127 121 132"_s);
    EXPECT_FALSE(am.isEnabled() || undated.isEnabled());
    clickPart("viewAll");
    EXPECT_EQ(dayIn("beginDay"), u"01/03/2025"_s);
    EXPECT_TRUE(find<QCheckBox>("btnViewAll").isChecked());
    clickPart("pmOnly");
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::pmOnly);
    EXPECT_EQ(systolic(), u"125 120 132"_s) << "morning and evening alike";
    clickPart("btnAverage");
    EXPECT_EQ(systolic(), u"138 120 199"_s);
    typeDay("beginDay", u"02032026"_s);
    EXPECT_EQ(systolic(), u"138 120 199"_s) << "not while it is being typed";
    press(Qt::Key_Return);
    EXPECT_EQ(systolic(), u"127 122 132"_s);
    EXPECT_FALSE(am.isEnabled() || undated.isEnabled() || undated.isChecked());
    for (const char* choice : {"viewAll", "amOnly", "pmOnly"})
        EXPECT_FALSE(find<QRadioButton>(choice).isChecked());
    clickPart("btnViewAll");
    EXPECT_TRUE(find<QRadioButton>("viewAll").isChecked());
    EXPECT_EQ(systolic(), u"125 120 132"_s);
}

TEST_F(PeriodBarTest, daysOutOfOrderAreRefusedAndPutBack) {
    openYear();
    const auto message = [](const QString& text) { return qtTrId("DateError") + u": "_s + text; };
    for (const auto& [field, other, before] : {std::tuple("beginDay", u"20032026"_s, u"20/12/2025"_s),
                                               std::tuple("endDay", u"20122025"_s, u"20/03/2026"_s)}) {
        typeDay(field, other);
        EXPECT_TRUE(panel.messages.empty());
        press(Qt::Key_Tab);
        EXPECT_EQ(panel.messages, QStringList(message(qtTrId("BeginDate"))));
        EXPECT_EQ(dayIn(field), before);
        panel.messages.clear();
    }
    auto& endDay = find<QDateEdit>("endDay");
    QTest::mousePress(&endDay, Qt::LeftButton, {}, {endDay.width() - 8, endDay.height() / 2});
    auto* days = endDay.calendarWidget()->findChild<QTableView*>();
    ASSERT_TRUE(days->isVisible());
    for (int months = 0; months < 4; ++months)
        QTest::keyClick(days, Qt::Key_PageUp);
    EXPECT_TRUE(panel.messages.empty()) << "not while the calendar is looked at";
    QTest::keyClick(days, Qt::Key_Return);
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(panel.messages, QStringList(message(qtTrId("EndDate"))));
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_EQ(period.getSelectViewIndex(), ViewSelection::custom);
}

} // namespace zel
