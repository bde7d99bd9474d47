#include "app/table/ReadingColumns.h"
#include "app/table/ReadingTableModel.h"
#include "app/table/TableViewController.h"
#include "support/ReadingPageTest.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QJsonArray>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using T = ReadingTableModel;

class TableArrangementTest : public ReadingPageTest {
protected:
    void openTable(QSize size = {1300, 750}) {
        open(new TableViewController({store, status, period, panel, clock}), size);
        clickPart("viewAll");
        QCoreApplication::processEvents();
    }
    /// Five readings, two of them alike but for their times, and a day without any.
    void storeAndOpen() {
        ReadingList list{reading(u"202603010800"_s, 130), reading(u"202603022000"_s, 118),
                         reading(u"202603030700"_s, 151), reading(u"202603050900"_s, 130),
                         reading(u"202603060600"_s, 125)};
        for (const std::size_t unknown : {0U, 1U, 2U})
            list[unknown].Arrhythmia = 0;
        list[1].pulse = 90;
        list[2].mam = 1;
        list[3].Arrhythmia = 2;
        list[4].Arrhythmia = 1;
        storeReadings(u"P1"_s, list);
        addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"walked"_s);
        addComment(u"2"_s, u"20260306"_s, u"20260306"_s, u"Asleep"_s);
        openTable();
    }
    QTableView& table() { return find<QTableView>("tblReadings"); }
    QHeaderView& header() { return *table().horizontalHeader(); }
    ReadingColumns& columns() { return find<TableViewController>("TableViewController").columns(); }
    QString cell(int row, int column, int role = Qt::DisplayRole) {
        return table().model()->index(row, column).data(role).toString();
    }
    /// The days of the month, from top to bottom: "1 2 3 4 5 6".
    QString days() {
        QStringList all;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            all += QString::number(cell(row, T::date).left(2).toInt());
        return all.join(u' ');
    }
    QString selectedDays() {
        QStringList all;
        for (const QModelIndex& row : table().selectionModel()->selectedRows(T::date))
            all += QString::number(row.data().toString().left(2).toInt());
        all.sort();
        return all.join(u' ');
    }
    QPoint inHeader(int column) {
        return {header().sectionViewportPosition(column) + header().sectionSize(column) / 2,
                header().height() / 2};
    }
    void clickTitle(int column) {
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, inHeader(column));
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(header().viewport(), Qt::LeftButton, {}, from);
        for (const QPoint& at : {(from + to) / 2, to})
            QTest::mouseMove(header().viewport(), at);
        QTest::mouseRelease(header().viewport(), Qt::LeftButton, {}, to);
    }
    void widen(int column, int pixels) {
        const QPoint edge{header().sectionViewportPosition(column) + header().sectionSize(column) - 1,
                          header().height() / 2};
        drag(edge, edge + QPoint{pixels, 0});
    }
    void clickRow(int row, Qt::KeyboardModifiers with = Qt::NoModifier) {
        const QModelIndex index = table().model()->index(row, T::sys);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, with, table().visualRect(index).center());
    }
    const ReadingModel& storedOf(const QString& date) {
        for (const ReadingModel& each : store.getReadingForCurID())
            if (each.ReadingDate == at(date)) return each;
        ADD_FAILURE() << "no such reading";
        return store.getReadingForCurID().front();
    }

    MonitorStatus status;
};

} // namespace

TEST_F(TableArrangementTest, aTitleSortsTheRowsAndDaysWithoutReadingComeLast) {
    storeAndOpen();
    ASSERT_EQ(days(), u"1 2 3 4 5 6"_s);
    struct Case {
        int column;
        QString ascending, descending;
    };
    // Equal values stay by date, whichever way.
    for (const auto& [column, ascending, descending] :
         {Case{T::time, u"6 3 1 5 2 4"_s, u"2 5 1 3 6 4"_s}, Case{T::sys, u"2 6 1 5 3 4"_s, u"3 1 5 6 2 4"_s},
          Case{T::pulse, u"1 3 5 6 2 4"_s, u"2 1 3 5 6 4"_s},
          Case{T::mapOrPP, u"2 6 1 5 3 4"_s, u"3 1 5 6 2 4"_s},
          Case{T::mam, u"1 2 5 6 3 4"_s, u"3 1 2 5 6 4"_s}, Case{T::mark, u"6 5 1 2 3 4"_s, u"5 6 1 2 3 4"_s},
          Case{T::comment, u"6 3 4 1 2 5"_s, u"3 4 6 1 2 5"_s},
          Case{T::date, u"1 2 3 4 5 6"_s, u"6 5 4 3 2 1"_s}}) {
        clickTitle(column);
        EXPECT_EQ(days(), ascending) << column;
        clickTitle(column);
        EXPECT_EQ(days(), descending) << column;
        EXPECT_EQ(header().sortIndicatorSection(), column);
    }
    storeReadings(u"P1"_s, {reading(u"202603080800"_s, 140)});
    EXPECT_EQ(days(), u"8 6 5 4 3 2 1"_s) << "also what comes later";
}

TEST_F(TableArrangementTest, theColumnThatShowsTwoThingsIsSortedByWhatItShows) {
    ReadingModel wide = reading(u"202603010800"_s, 150), high = reading(u"202603020800"_s, 140);
    wide.dia = 60;
    wide.map = 90;
    wide.pp = 90;
    high.map = 113;
    high.pp = 40;
    storeReadings(u"P1"_s, {wide, high});
    for (const auto& [shown, order] : {std::pair(0U, u"2 1"_s), {1U, u"1 2"_s}}) {
        store.getSetting().showPPorMap = shown;
        openTable();
        clickTitle(T::mapOrPP);
        EXPECT_EQ(days(), order) << shown;
    }
}

TEST_F(TableArrangementTest, whatIsDoneWithARowIsDoneWithTheReadingThatItShows) {
    storeAndOpen();
    for (const QString& date : {u"202603010800"_s, u"202603030700"_s, u"202603060600"_s})
        ASSERT_TRUE(store.excludeReadings({ReadingModel(storedOf(date))}, u"of "_s + date));
    ASSERT_TRUE(store.addReading(u"P1"_s, {at(u"202603070800"_s), 199, 80, 60}));
    clickTitle(T::sys);
    clickTitle(T::sys);
    ASSERT_EQ(days(), u"7 3 1 5 6 2 4"_s);
    EXPECT_TRUE(cell(1, T::sys, Qt::ToolTipRole).contains(u"of 202603030700"_s));
    clickRow(1);
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"1"_s);
    EXPECT_EQ(editor().toPlainText(), u"walked"_s);
    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(storedOf(u"202603030700"_s).isExcluded());
    EXPECT_TRUE(storedOf(u"202603010800"_s).isExcluded());
    EXPECT_TRUE(storedOf(u"202603060600"_s).isExcluded());
    EXPECT_EQ(days(), u"7 3 1 5 6 2 4"_s) << "the order outlives a change";
    clickRow(0);
    EXPECT_TRUE(window().findChild<QAction*>(u"deleteReadings"_s)->isEnabled()) << "a typed one";
    clickRow(2);
    clickRow(0, Qt::ControlModifier);
    EXPECT_FALSE(window().findChild<QAction*>(u"deleteReadings"_s)->isEnabled());
    press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[1].startsWith(u"07/03/2026"_s) && lines[2].startsWith(u"01/03/2026"_s))
        << "as they are shown";
}

TEST_F(TableArrangementTest, whatIsSelectedStaysWithItsReadings) {
    storeAndOpen();
    clickRow(1);
    clickRow(2, Qt::ControlModifier);
    clickRow(5, Qt::ControlModifier);
    ASSERT_EQ(selectedDays(), u"2 3 6"_s);
    for (const int column : {T::sys, T::sys, T::comment, T::date}) {
        clickTitle(column);
        EXPECT_EQ(selectedDays(), u"2 3 6"_s) << column;
        EXPECT_EQ(cell(table().currentIndex().row(), T::date), u"06/03/2026"_s) << column;
    }
    clickTitle(T::sys);
    storeReadings(u"P1"_s, {reading(u"202603080800"_s, 110)}); // before all of them
    EXPECT_EQ(selectedDays(), u"2 3 6"_s);
}

TEST_F(TableArrangementTest, aChosenReadingStaysInSightAndElseTheFirstRowsAreShown) {
    ReadingList many;
    for (int day = 1; day < 29; ++day)
        for (const int hour : {10, 12, 20})
            many.push_back(reading(u"202602%1%200"_s.arg(day, 2, 10, QChar(u'0')).arg(hour),
                                   static_cast<std::uint32_t>(100 + (day * 37 + hour) % 60)));
    storeReadings(u"P1"_s, many);
    openTable({1300, 500});
    QScrollBar& scrolled = *table().verticalScrollBar();
    waitFor([&] { return scrolled.value() == scrolled.maximum() && scrolled.maximum() > 0; });
    clickTitle(T::sys);
    EXPECT_EQ(scrolled.value(), 0);
    clickTitle(T::date);
    EXPECT_EQ(scrolled.value(), scrolled.maximum()) << "by date the latest ones";
    clickTitle(T::date);
    EXPECT_EQ(scrolled.value(), 0) << "also backwards";
    clickRow(1);
    for (const int column : {T::sys, T::date}) {
        clickTitle(column);
        const QRect mark = table().visualRect(table().currentIndex());
        EXPECT_TRUE(table().viewport()->rect().contains(mark.center())) << column;
    }
}

TEST_F(TableArrangementTest, rowsAreByDateAgainOnceTheColumnThatTheyWereSortedByIsHidden) {
    storeAndOpen();
    const QString usual = days();
    clickTitle(T::mam);
    ASSERT_NE(days(), usual);
    clickPart("btnShowPad");
    EXPECT_NE(days(), usual) << "another column";
    clickPart("btnShowMam");
    EXPECT_EQ(days(), usual);
}

TEST_F(TableArrangementTest, aColumnThatIsSizedKeepsItsWidth) {
    storeAndOpen();
    const int before = header().sectionSize(T::sys), usual = header().sectionSize(T::date);
    window().resize(1500, 750);
    QCoreApplication::processEvents();
    EXPECT_GT(header().sectionSize(T::sys), before) << "until then they share the room";
    clickPart("btnShowMam");
    clickPart("btnShowMam");
    EXPECT_TRUE(columns().state().isEmpty()) << "a column that comes and goes is not sized";
    const int shared = header().sectionSize(T::sys);
    widen(T::sys, 40);
    EXPECT_EQ(header().sectionSize(T::sys), shared + 40);
    const QJsonObject state = columns().state();
    window().resize(1300, 750);
    QCoreApplication::processEvents();
    EXPECT_EQ(header().sectionSize(T::sys), shared + 40);
    EXPECT_EQ(columns().state(), state) << "no narrower with each start";
    window().findChild<QAction*>(u"usualColumns"_s)->trigger();
    EXPECT_EQ(header().sectionSize(T::sys), before);
    EXPECT_EQ(header().sectionSize(T::date), usual);
    EXPECT_TRUE(columns().state().isEmpty());
}

TEST_F(TableArrangementTest, columnsAreMovedAndCopiedAsTheyStand) {
    storeAndOpen();
    drag(inHeader(T::pulse), inHeader(T::date) - QPoint{30, 0});
    ASSERT_EQ(header().visualIndex(T::pulse), 0);
    clickRow(0);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(u"Pulse 1/min\tDate\t"_s));
    EXPECT_EQ(days(), u"1 2 3 4 5 6"_s) << "moving sorts nothing";
    const auto hasWords = [&](int row, int column) {
        const QRect place = table().visualRect(table().model()->index(row, column));
        const QImage image = table().viewport()->grab(place.adjusted(2, 4, -2, -4)).toImage();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y).lightness() < 100) return true;
        return false;
    };
    EXPECT_TRUE(hasWords(3, T::sys)) << "a day without a reading says so";
    EXPECT_FALSE(hasWords(3, T::dia));
}

TEST_F(TableArrangementTest, anArrangementIsTakenUpAndWhatCannotBeUnderstoodIsAsUsual) {
    storeAndOpen();
    header().moveSection(header().visualIndex(T::comment), 1);
    widen(T::dia, 30);
    clickTitle(T::pulse);
    clickTitle(T::pulse);
    const QJsonObject kept = columns().state();
    const int dia = header().sectionSize(T::dia);
    openTable();
    EXPECT_TRUE(columns().state().isEmpty());
    columns().restore(kept);
    EXPECT_EQ(columns().state(), kept);
    EXPECT_EQ(header().sectionSize(T::dia), dia);
    EXPECT_EQ(header().visualIndex(T::comment), 1);
    EXPECT_EQ(days(), u"2 1 3 5 6 4"_s);
    const QJsonObject unknown{{u"order"_s, QJsonArray{u"steps"_s, 7, u"date"_s, u"date"_s}},
                              {u"letters"_s, QJsonArray{1, 2}},
                              {u"sortedBy"_s, u"steps"_s},
                              {u"descending"_s, true}};
    columns().restore(unknown);
    EXPECT_TRUE(columns().state().isEmpty());
    const QJsonObject wild{{u"letters"_s, QJsonObject{{u"date"_s, -5}, {u"sys"_s, 1e9}, {u"dia"_s, u"x"_s}}}};
    columns().restore(wild);
    for (int column = 0; column < T::comment; ++column) {
        EXPECT_GE(header().sectionSize(column), header().minimumSectionSize()) << column;
        EXPECT_LT(header().sectionSize(column), 400) << column;
    }
}

} // namespace zel
