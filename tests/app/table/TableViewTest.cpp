#include "analysis/HighValues.h"
#include "app/table/ReadingTableModel.h"
#include "app/table/TableViewController.h"
#include "chart/ScreenColours.h"
#include "store/PressureLimits.h"
#include "support/ReadingPageTest.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class TableViewTest : public ReadingPageTest {
protected:
    void openTable() { open(new TableViewController({store, status, period, panel, clock})); }
    QTableView& table() { return find<QTableView>("tblReadings"); }
    QString cell(int row, int column, int role = Qt::DisplayRole) {
        return table().model()->index(row, column).data(role).toString();
    }
    QString title(int column) { return table().model()->headerData(column, Qt::Horizontal).toString(); }
    QStringList systolic() {
        QStringList values;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            values += cell(row, ReadingTableModel::sys);
        return values;
    }
    void clickRow(int row) {
        const QPoint middle = table().visualRect(table().model()->index(row, 2)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle);
    }
    QAction& action(const char* name) { return *window().findChild<QAction*>(QLatin1String(name)); }
    QColor pixel(int row, int column, QPoint offset) {
        const QImage image = table().viewport()->grab().toImage();
        return image.pixelColor(table().visualRect(table().model()->index(row, column)).topLeft() + offset);
    }

    MonitorStatus status;
};

} // namespace

TEST_F(TableViewTest, readingsAreListedByDateAndEqualDatesAsTheyWereStored) {
    storeReadings(u"P1"_s, {reading(u"202603050800"_s, 131), reading(u"202603010800"_s, 121),
                            reading(u"202603050800"_s, 132)});
    openTable();
    EXPECT_EQ(systolic(), (QStringList{u"121"_s, u"131"_s, u"132"_s}));
    EXPECT_EQ(cell(0, ReadingTableModel::date), u"01/03/2026"_s);
}

TEST_F(TableViewTest, theRowsAreThoseOfThePeriod) {
    storeYear();
    openTable();
    EXPECT_EQ(systolic().size(), 4);
    clickPart("viewAll");
    clickPart("pmOnly");
    EXPECT_EQ(systolic(), (QStringList{u"131"_s, u"132"_s}));
    clickPart("btnAverage");
    EXPECT_EQ(systolic().first(), u"199"_s);
    typeDay("beginDay", u"02032026"_s);
    EXPECT_EQ(systolic().size(), 3) << "not while it is being typed";
    press(Qt::Key_Return);
    EXPECT_EQ(systolic(), QStringList(u"132"_s)) << "still from noon on";
    clickPart("viewBoth");
    EXPECT_EQ(systolic(), (QStringList{u"122"_s, u"132"_s}));
    clickPart("btnViewAll");
    EXPECT_EQ(systolic().size(), 5);
    for (const auto& [field, day] : {std::pair("beginDay", u"01042025"_s), {"endDay", u"01052025"_s}}) {
        typeDay(field, day);
        press(Qt::Key_Return);
    }
    EXPECT_TRUE(page("noneInPeriod").isVisible());
}

TEST_F(TableViewTest, aReadingThatIsTypedInIsSelectedOrItIsSaidThatItLiesOutside) {
    storeYear(); // shown from 20/12/2025 on
    openTable();
    QStringList said;
    QObject::connect(&find<TableViewController>("TableViewController"), &TableViewController::said, &table(),
                     [&said](const QString& text) { said += text; });
    const auto typeIn = [this](const QString& day) {
        QTimer::singleShot(0, qApp, [day] {
            QWidget* dialog = QApplication::activeModalWidget();
            for (const auto& [name, text] : {std::pair(u"readingDay"_s, day),
                                             {u"readingSys"_s, u"177"_s},
                                             {u"readingDia"_s, u"80"_s},
                                             {u"readingPulse"_s, u"60"_s}})
                dialog->findChild<QLineEdit*>(name)->setText(text);
            QTest::mouseClick(dialog->findChild<QWidget*>(u"btnSaveReading"_s), Qt::LeftButton);
        });
        action("newReading").trigger();
    };
    typeIn(u"02/03/2026"_s);
    ASSERT_EQ(table().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(cell(table().currentIndex().row(), ReadingTableModel::sys), u"177"_s);
    typeIn(u"19/12/2025"_s);
    EXPECT_EQ(said.size(), 2);
    EXPECT_TRUE(said.last().startsWith(qtTrId("readingStoredOutside").section(u'%', 0, 0)));
    EXPECT_TRUE(said.last().endsWith(qtTrId("readingStoredOutside").section(u"%1"_s, 1)));
    EXPECT_NE(said.first(), said.last());
}

TEST_F(TableViewTest, theTableFollowsTheSettings) {
    storeReadings(u"P1"_s, {reading(u"202603050800"_s, 131)});
    for (const auto& [setting, words, value] :
         {std::tuple(0U, qtTrId("pp"), u"51"_s), std::tuple(1U, qtTrId("map"), u"93"_s)}) {
        store.getSetting().showPPorMap = setting;
        openTable();
        EXPECT_EQ(title(ReadingTableModel::mapOrPP), qtTrId("columnPressure").arg(words));
        EXPECT_EQ(cell(0, ReadingTableModel::mapOrPP), value);
    }
}

TEST_F(TableViewTest, theMarkColumnIsTitledByReadingsThenByMonitorThenByTarget) {
    store.setCurrentID(u"P1"_s);
    openTable();
    EXPECT_NE(title(ReadingTableModel::mark), qtTrId("afib"));
    status.update([](MonitorState& state) { state.isAFib = true; });
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("afib"));
    ReadingModel padReading = reading(u"202603050800"_s, 131);
    padReading.Arrhythmia = 2;
    storeReadings(u"P1"_s, {padReading});
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("pad"));
    EXPECT_EQ(cell(0, ReadingTableModel::mark, Qt::AccessibleTextRole), u"Yes"_s);
    EXPECT_EQ(cell(0, ReadingTableModel::mam, Qt::AccessibleTextRole), u"No"_s);
    ReadingModel afibReading = reading(u"202603060800"_s, 131);
    afibReading.Arrhythmia = 4;
    storeReadings(u"P1"_s, {afibReading});
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("afib"));
    EXPECT_EQ(cell(1, ReadingTableModel::mark, Qt::AccessibleTextRole), u"No"_s);
}

TEST_F(TableViewTest, rowsAreBlackOnWhiteOnALightDesktop) {
    storeComments();
    ReadingModel found = reading(u"202611210800"_s, 151); // the day of the download
    found.Arrhythmia = 2;
    storeReadings(u"P1"_s, {found});
    const QPalette before = QApplication::palette();
    QPalette light = before;
    light.setColor(QPalette::Base, QColor(253, 246, 227));
    QApplication::setPalette(light);
    openTable();
    clickPart("viewAll");
    const QPoint corner(3, 3);
    ASSERT_EQ(systolic(), (QStringList{u"121"_s, u"122"_s, u""_s, u"123"_s, u"151"_s}));
    EXPECT_EQ(pixel(0, 2, corner), QColor(Qt::white));
    EXPECT_EQ(pixel(4, 2, corner), QColor(255, 255, 205));
    EXPECT_EQ(pixel(0, 2, {3, 0}), QColor(Qt::white)) << "the first row has no line above";
    EXPECT_EQ(pixel(1, 2, {3, 0}), QColor(Qt::black));
    const int middle = table().columnWidth(ReadingTableModel::mark) / 2, height = table().rowHeight(0) / 2;
    EXPECT_EQ(pixel(0, ReadingTableModel::mark, {middle, height}), QColor(Qt::white)) << "an outline";
    EXPECT_LT(pixel(0, ReadingTableModel::mark, {middle - 5, height}).lightness(), 160);
    EXPECT_EQ(pixel(1, ReadingTableModel::comment, {13, height}), QColor(255, 120, 0));
    EXPECT_EQ(pixel(2, ReadingTableModel::comment, {13, height}), QColor(255, 120, 0)) << "a day without";
    EXPECT_EQ(pixel(4, ReadingTableModel::mark, {middle, height}), QColor(Qt::black)) << "a finding";
    EXPECT_EQ(pixel(0, ReadingTableModel::mam, {middle, height}), QColor(Qt::white));
    EXPECT_EQ(pixel(0, ReadingTableModel::comment, {8, height}), QColor(Qt::white)) << "no comment";
    EXPECT_EQ(pixel(1, ReadingTableModel::comment, {8, height}), QColor(Qt::black)) << "the selected comment";
    EXPECT_NE(pixel(3, ReadingTableModel::comment, {8, height}), QColor(Qt::black));
    const auto hasWords = [&](int row, int from, int to) {
        const QRect cells = table().visualRect(table().model()->index(row, from))
                            | table().visualRect(table().model()->index(row, to));
        const QImage image = table().viewport()->grab(cells.adjusted(30, 4, 0, -4)).toImage();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y).lightness() < 100) return true;
        return false;
    };
    EXPECT_TRUE(hasWords(1, ReadingTableModel::comment, ReadingTableModel::comment));
    EXPECT_FALSE(hasWords(2, ReadingTableModel::comment, ReadingTableModel::comment)) << "where it begins";
    EXPECT_TRUE(hasWords(2, ReadingTableModel::time, ReadingTableModel::mark)) << "a day without a reading";
    EXPECT_EQ(cell(2, ReadingTableModel::date, Qt::AccessibleTextRole),
              qtTrId("dayWithoutReading").arg(u"04/03/2026"_s));
    EXPECT_EQ(cell(4, ReadingTableModel::date, Qt::AccessibleTextRole),
              qtTrId("dayOfDownload").arg(u"21/11/2026"_s));
    QApplication::setPalette(before);
}

TEST_F(TableViewTest, rowsTakeADarkDesktopsColoursAlsoWhileTheyAreShown) {
    storeComments();
    ReadingModel found = reading(u"202611210800"_s, 151); // the day of the download
    found.Arrhythmia = 2;
    storeReadings(u"P1"_s, {found});
    openTable();
    clickPart("viewAll");
    const QPalette before = QApplication::palette();
    const QColor paper(20, 20, 40), ink(250, 250, 220);
    QPalette dark(ink, Qt::darkGray, Qt::gray, Qt::black, Qt::darkGray, ink, ink, paper, Qt::black);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const QPoint corner(3, 3);
    EXPECT_EQ(pixel(0, 2, corner), paper);
    EXPECT_EQ(pixel(1, 2, {3, 0}), ink) << "the line above";
    const QColor download = pixel(4, 2, corner);
    EXPECT_NE(download, paper);
    EXPECT_GE(contrast(ink, download), readable);
    const int middle = table().columnWidth(ReadingTableModel::mark) / 2, height = table().rowHeight(0) / 2;
    EXPECT_EQ(pixel(4, ReadingTableModel::mark, {middle, height}), ink) << "a finding";
    EXPECT_EQ(pixel(1, ReadingTableModel::comment, {8, height}), ink) << "the selected comment";
    const QColor band = pixel(1, ReadingTableModel::comment, {13, height});
    EXPECT_NEAR(band.hue(), QColor(255, 120, 0).hue(), 3);
    table().selectRow(0);
    EXPECT_GE(contrast(ink, pixel(0, 2, {10, 3})), readable) << "chosen";
    QApplication::setPalette(before);
    QCoreApplication::processEvents();
    EXPECT_EQ(pixel(1, 2, corner), QColor(Qt::white));
}

TEST_F(TableViewTest, valuesFromTheLimitsOnAreMarkedAndSpokenAndTheLegendNamesTheLimits) {
    ReadingModel systolicHigh = reading(u"202603010800"_s, 135),
                 diastolicHigh = reading(u"202603020800"_s, 134);
    systolicHigh.dia = 84;
    diastolicHigh.dia = 85;
    storeReadings(u"P1"_s, {systolicHigh, diastolicHigh});
    openTable();
    const QByteArray file = dataFile();
    const auto hasMark = [this](int row, int column) {
        const QRect place = table().visualRect(table().model()->index(row, column));
        const int number = table().fontMetrics().horizontalAdvance(u"0000"_s);
        const QRect beside = place.adjusted((place.width() + number) / 2, 3, 0, -3);
        const QImage image = table().viewport()->grab(beside).toImage();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y).lightness() < 100) return true;
        return false;
    };
    /// SYS and DIA of each row: "x" for a mark.
    const auto marks = [&] {
        QString all;
        for (int row = 0; row < 2; ++row)
            for (const int column : {ReadingTableModel::sys, ReadingTableModel::dia}) {
                const bool isMarked = hasMark(row, column);
                const QString words = cell(row, column);
                EXPECT_EQ(cell(row, column, Qt::AccessibleTextRole),
                          isMarked ? qtTrId("valueHigh").arg(words) : words);
                all += isMarked ? u'x' : u'-';
            }
        return all.toStdString();
    };
    EXPECT_EQ(marks(), "x--x");
    EXPECT_EQ(text("lblHighMark"), describeHighMark({135, 85}));
    EXPECT_FALSE(page("ownSys").isVisible());
    expectNamed(page("limitBar"));
    int told = 0; // to who speaks the cells, and to the view
    QObject::connect(table().model(), &QAbstractItemModel::dataChanged, &table(), [&told] { ++told; });
    find<QComboBox>("cboHighFrom").setFocus(Qt::TabFocusReason);
    rollOver(page("cboHighFrom"));
    EXPECT_EQ(store.viewLimits(), ViewLimits{}) << "the wheel only passed";
    press(Qt::Key_Down);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(marks(), "----");
    EXPECT_EQ(text("lblHighMark"), describeHighMark({140, 90}));
    press(Qt::Key_Down);
    EXPECT_EQ(marks(), "xxxx");
    press(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &page("ownSys"));
    EXPECT_EQ(marks(), "x--x") << "until others are typed";
    type("ownSys", u"80"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(page("lblOwnProblem").isVisible());
    EXPECT_EQ(page("ownSys").accessibleDescription(), describe(LimitProblem::order));
    EXPECT_EQ(marks(), "x--x");
    type("ownDia", QString());
    press(Qt::Key_Return);
    EXPECT_FALSE(page("lblOwnProblem").isVisible());
    EXPECT_EQ(marks(), "x-x-") << "no limit is none";
    EXPECT_EQ(text("lblHighMark"), describeHighMark({80, 0}));
    clickRow(0);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"\t135\t84\t"_s)) << "numbers for a sheet";
    EXPECT_EQ(dataFile(), file);
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.viewLimits(), (ViewLimits{LimitChoice::own, {80, 0}}));
    const QString choice = QFileInfo(store.getZELXMLPath()).path() + u"/View.json"_s;
    ASSERT_TRUE(QFile::remove(choice) && QDir().mkdir(choice));
    find<QComboBox>("cboHighFrom").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Up);
    EXPECT_EQ(panel.messages.size(), 1) << "not kept for the next start";
    EXPECT_EQ(marks(), "xxxx");
}

TEST_F(TableViewTest, columnsAreHiddenAndRowsAreCopiedAsTheyAreShown) {
    storeComments();
    addComment(u"3"_s, u"20260301"_s, u"20260301"_s, u"two\nlines\t"_s);
    openTable();
    EXPECT_EQ(cell(0, ReadingTableModel::comment, Qt::ToolTipRole), u"two\nlines\t"_s);
    clickPart("btnShowMam");
    EXPECT_TRUE(table().isColumnHidden(ReadingTableModel::mam));
    table().setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[0], u"Date\tTime\tSYS mmHg\tDIA mmHg\tPulse 1/min\tPP mmHg\tPAD\tComment"_s);
    EXPECT_TRUE(lines[1].endsWith(u"\tNo\ttwo lines"_s)) << qPrintable(lines[1]);
    EXPECT_EQ(lines[2], u"03/03/2026\t08:00 A\t122\t80\t65\t42\tNo\tfirst"_s);
    EXPECT_EQ(lines[3], u"04/03/2026\tn.a.\tn.a.\tn.a.\tn.a.\tn.a.\tn.a.\tfirst"_s);
    clickRow(3);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                      table().visualRect(table().model()->index(0, 2)).center());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringList({lines[0], lines[1], lines[4], {}}).join(u'\n'))
        << "in the list's order";
}

TEST_F(TableViewTest, aCommentedRowSelectsItsComment) {
    storeComments();
    openTable();
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    typeComment(u"+"_s);
    clickRow(3);
    EXPECT_EQ(stored(u"1"_s), u"first+"_s);
    EXPECT_EQ(editor().toPlainText(), u"second"_s);
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s);
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
    clickPart("btnNextComment");
    EXPECT_EQ(text("lblCommentPosition"), u"2 of 2"_s);
    table().setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(text("lblCommentPosition"), u"1 of 2"_s);
    clickPart("btnNextComment");
    clickPart("btnSide");
    clickRow(1);
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s) << "the panel is not shown";
}

TEST_F(TableViewTest, aDayWithoutReadingsGoesWithItsComment) {
    storeComments();
    openTable();
    EXPECT_EQ(systolic().size(), 4);
    clickPart("btnDeleteComment");
    EXPECT_EQ(systolic().size(), 3);
}

TEST_F(TableViewTest, daysThatAreTooManyForTheListAreTold) {
    storeReadings(u"P1"_s, {reading(u"190001010800"_s, 121), reading(u"202603010800"_s, 122)});
    addComment(u"1"_s, u"19000101"_s, u"20260301"_s, u"of another century"_s);
    openTable();
    const QString told = u"at most 36525"_s;
    EXPECT_FALSE(text("lblDetail").contains(told)) << "in the last months they are all there";
    clickPart("viewAll");
    EXPECT_TRUE(text("lblDetail").contains(told)) << qPrintable(text("lblDetail"));
}

TEST_F(TableViewTest, whatIsSelectedIsFoundAgainByItsReadings) {
    storeComments();
    openTable();
    const auto selected = [this] {
        QStringList days;
        for (const QModelIndex& row : table().selectionModel()->selectedRows(ReadingTableModel::date))
            days += row.data().toString();
        days.sort();
        return days;
    };
    clickRow(3);
    for (const int row : {2, 1})
        QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          table().visualRect(table().model()->index(row, 2)).center());
    QStringList days{u"03/03/2026"_s, u"04/03/2026"_s, u"10/03/2026"_s};
    ASSERT_EQ(selected(), days);
    storeReadings(u"P1"_s, {reading(u"202603010700"_s, 119)}); // before all of them
    ASSERT_EQ(systolic().first(), u"119"_s);
    EXPECT_EQ(selected(), days);
    EXPECT_EQ(table().currentIndex().row(), 2) << "it follows its reading";
    clickPart("btnDeleteComment"); // and the day without a reading with it
    days.removeAt(1);
    EXPECT_EQ(selected(), days);
    EXPECT_EQ(table().currentIndex().row(), 2);
    storeReadings(u"P2"_s, {reading(u"202603030800"_s, 122), reading(u"202603030900"_s, 122)});
    EXPECT_TRUE(selected().isEmpty());
    EXPECT_FALSE(table().currentIndex().isValid()) << "it was another patient's";
}

TEST_F(TableViewTest, savingACommentLeavesTheListWhereItIs) {
    ReadingList month;
    for (int day = 10; day < 28; ++day)
        for (const int hour : {10, 12, 20})
            month.push_back(reading(u"202603%1%200"_s.arg(day).arg(hour), 120));
    storeReadings(u"P1"_s, month);
    addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"first"_s);
    openTable();
    const auto& scrolled = *table().verticalScrollBar();
    waitFor([&] { return scrolled.value() > 9; }); // at the latest readings
    table().setCurrentIndex(table().model()->index(3, 0));
    for (const int place : {0, 9, 1000}) {
        table().verticalScrollBar()->setValue(place);
        typeComment(u"+"_s);
        press(Qt::Key_Tab);
        EXPECT_EQ(scrolled.value(), std::min(place, scrolled.maximum()));
        EXPECT_EQ(table().currentIndex().row(), 3);
    }
}

TEST_F(TableViewTest, whatIsLeftOutOrTypedInIsMarkedAndSaid) {
    storeReadings(u"P1"_s, {reading(u"202603010800"_s, 121), reading(u"202603050800"_s, 131)});
    ASSERT_TRUE(store.addReading(u"P1"_s, {at(u"202603060800"_s), 120, 80, 60}));
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID().front()}, u"cuff\t<b>"_s));
    addComment(u"1"_s, u"20260301"_s, u"20260301"_s, u"mine"_s);
    openTable();
    EXPECT_EQ(cell(0, ReadingTableModel::comment), u"left out: cuff <b> · mine"_s);
    EXPECT_EQ(cell(0, ReadingTableModel::sys, Qt::ToolTipRole), u"left out: cuff <b>"_s);
    EXPECT_EQ(cell(0, ReadingTableModel::date, Qt::AccessibleTextRole), u"01/03/2026, left out: cuff <b>"_s);
    EXPECT_EQ(cell(1, ReadingTableModel::sys, Qt::ToolTipRole), QString());
    EXPECT_EQ(cell(2, ReadingTableModel::comment), u"typed in"_s);
    EXPECT_TRUE(text("lblDetail").contains(u"3 readings, 1 of them left out"_s))
        << qPrintable(text("lblDetail"));
    const int middle = table().visualRect(table().model()->index(0, 0)).height() / 2;
    for (int column = 0; column < ReadingTableModel::comment; ++column) {
        const auto struck = [&](int row) {
            return pixel(row, column, {2, middle}) == QColor(Qt::black)
                   || pixel(row, column, {2, middle - 1}) == QColor(Qt::black);
        };
        EXPECT_TRUE(struck(0)) << column;
        EXPECT_FALSE(struck(1)) << column;
    }
    clickRow(2);
    EXPECT_TRUE(table().actions().contains(window().findChild<QAction*>(u"changeReading"_s)));
    EXPECT_TRUE(action("changeReading").isEnabled());
    table().selectAll();
    EXPECT_FALSE(action("changeReading").isEnabled());
    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(store.getReadingForCurID().front().isExcluded());
}

} // namespace zel
