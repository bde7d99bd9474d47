#include "AppFixture.h"
#include "app/ReadingTableModel.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class ReadingPageTest : public AppTest {
protected:
    ReadingPageTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        startsPlugged = false;
    }
    static Instant at(const QString& date) { return StrToDate(date, u"yyyyMMddHHmm"_s).value_or(Instant{}); }
    static ReadingModel reading(const QString& date, std::uint32_t sys) {
        ReadingModel made;
        made.ReadingDate = at(date);
        made.sys = sys;
        made.dia = 80;
        made.pulse = 65;
        made.Arrhythmia = 1;
        return made;
    }
    void storeReadings(const QString& ID, const ReadingList& readings) {
        store.setCurrentID(ID);
        ASSERT_TRUE(store.newDataTransfer(readings));
    }
    void addComment(const QString& ID, const QString& begin, const QString& end, const QString& text) {
        CommentModel comment;
        comment.CommentID = ID;
        comment.degree = 2;
        comment.beginDate = at(begin + u"0000"_s);
        comment.endDate = at(end + u"2359"_s);
        comment.comment = text;
        ASSERT_TRUE(store.addCommentForCurID(comment));
    }
    /// A year of P1's readings, morning and evening, the last on 20/03/2026.
    void storeYear() {
        storeReadings(u"P1"_s, {reading(u"202503010800"_s, 120), reading(u"202603010800"_s, 121),
                                reading(u"202603012000"_s, 131), reading(u"202603200800"_s, 122),
                                reading(u"202603202000"_s, 132), reading(u"200001010000"_s, 199)});
    }
    void storeComments() {
        storeReadings(u"P1"_s, {reading(u"202603010800"_s, 121), reading(u"202603030800"_s, 122),
                                reading(u"202603100800"_s, 123)});
        addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"first"_s);
        addComment(u"2"_s, u"20260310"_s, u"20260310"_s, u"second"_s);
    }
    void openTable() {
        start();
        click("tableBtn");
        app->mainWndow().resize(1300, 750);
    }
    QTableView& table() { return find<QTableView>("tblReadings"); }
    QPlainTextEdit& editor() { return *tablePart<QPlainTextEdit>("commentText"); }
    template <class W>
    W* tablePart(const char* name) {
        return page("TableViewController").findChild<W*>(QLatin1String(name));
    }
    /// A button's mark, wherever it stands in the room that the button has.
    void clickPart(const char* name) {
        auto* part = tablePart<QWidget>(name);
        QTest::mouseClick(part, Qt::LeftButton, {}, {8, part->height() / 2});
    }
    QStringList systolic() {
        QStringList values;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            values += table().model()->index(row, ReadingTableModel::sys).data().toString();
        return values;
    }
    void typeDay(const char* field, const QString& digits) {
        auto& day = *tablePart<QDateEdit>(field);
        day.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&day, digits);
    }
    QString dayIn(const char* field) { return tablePart<QDateEdit>(field)->text(); }
    void clickRow(int row) {
        const QPoint middle = table().visualRect(table().model()->index(row, 2)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle);
    }
    void type(const QString& text) {
        editor().setFocus();
        editor().moveCursor(QTextCursor::End);
        QTest::keyClicks(&editor(), text);
    }
    QString stored(const QString& ID) {
        for (const auto& comment : store.getCommentForCurID())
            if (comment->CommentID == ID) return comment->comment;
        return u"none"_s;
    }
    QColor pixel(int row, int column, QPoint offset) {
        const QImage image = table().viewport()->grab().toImage();
        return image.pixelColor(table().visualRect(table().model()->index(row, column)).topLeft() + offset);
    }
};

} // namespace

TEST_F(ReadingPageTest, thePeriodIsPickedByDaysOrByViewChoice) {
    storeYear();
    openTable();
    const auto* am = tablePart<QRadioButton>("amOnly");
    const auto* undated = tablePart<QCheckBox>("btnAverage");
    EXPECT_EQ(dayIn("beginDay"), u"20/12/2025"_s);
    EXPECT_EQ(dayIn("endDay"), u"20/03/2026"_s);
    EXPECT_EQ(systolic().size(), 4);
    EXPECT_FALSE(am->isEnabled() || undated->isEnabled());
    clickPart("viewAll");
    EXPECT_EQ(dayIn("beginDay"), u"01/03/2025"_s);
    EXPECT_TRUE(tablePart<QCheckBox>("btnViewAll")->isChecked());
    clickPart("pmOnly");
    EXPECT_EQ(systolic(), (QStringList{u"131"_s, u"132"_s}));
    clickPart("btnAverage");
    EXPECT_EQ(systolic().first(), u"199"_s);
    typeDay("beginDay", u"02032026"_s);
    EXPECT_EQ(systolic().size(), 3) << "not while it is being typed";
    press(Qt::Key_Return);
    EXPECT_EQ(systolic(), (QStringList{u"122"_s, u"132"_s}));
    EXPECT_FALSE(am->isEnabled() || undated->isEnabled() || undated->isChecked());
    for (const char* choice : {"viewAll", "amOnly", "pmOnly"})
        EXPECT_FALSE(tablePart<QRadioButton>(choice)->isChecked());
    clickPart("btnViewAll");
    EXPECT_TRUE(tablePart<QRadioButton>("viewAll")->isChecked());
    EXPECT_EQ(systolic().size(), 5);
}

TEST_F(ReadingPageTest, daysOutOfOrderAreRefusedAndPutBack) {
    storeYear();
    openTable();
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
    auto& endDay = *tablePart<QDateEdit>("endDay");
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

TEST_F(ReadingPageTest, aNewlyChosenPatientOpensInTheViewThatSuitsTheData) {
    storeYear();
    storeReadings(u"P2"_s, {reading(u"202602010800"_s, 141), reading(u"202603010800"_s, 142)});
    store.setCurrentID(u"P1"_s);
    openTable();
    typeDay("beginDay", u"02032026"_s);
    press(Qt::Key_1, Qt::ControlModifier);
    ASSERT_TRUE(page("PatientViewController").isVisible());
    EXPECT_TRUE(period.getTimePeriod().begin == at(u"202603020000"_s)) << "leaving the field confirms it";
    press(Qt::Key_Down);
    click("tableBtn");
    EXPECT_TRUE(tablePart<QRadioButton>("viewAll")->isChecked());
    EXPECT_EQ(dayIn("beginDay"), u"01/02/2026"_s);
    EXPECT_FALSE(period.isChangeUser());
    clickPart("amOnly");
    click("patientBtn");
    click("tableBtn");
    EXPECT_TRUE(tablePart<QRadioButton>("amOnly")->isChecked()) << "the same patient's view stays";
}

TEST_F(ReadingPageTest, rowsAreBlackOnWhiteWhateverTheDesktopsColours) {
    storeComments();
    storeReadings(u"P1"_s, {reading(u"202611210800"_s, 151)}); // the day of the download
    app.reset();
    const QPalette before = QApplication::palette();
    QPalette dark(Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::darkGray, Qt::white, Qt::white, Qt::black,
                  Qt::black);
    QApplication::setPalette(dark);
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
    QApplication::setPalette(before);
}

TEST_F(ReadingPageTest, columnsAreHiddenAndRowsAreCopiedAsTheyAreShown) {
    storeComments();
    openTable();
    clickPart("btnShowMam");
    EXPECT_TRUE(table().isColumnHidden(ReadingTableModel::mam));
    table().setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[0], u"Date\tTime\tSYS mmHg\tDIA mmHg\tPulse 1/min\tPP mmHg\tPAD\tComment"_s);
    EXPECT_EQ(lines[2], u"03/03/2026\t08:00 A\t122\t80\t65\t0\tNo\tfirst"_s);
    EXPECT_EQ(lines[3], u"04/03/2026\tn.a.\tn.a.\tn.a.\tn.a.\tn.a.\tn.a.\tfirst"_s);
}

TEST_F(ReadingPageTest, aCommentedRowSelectsItsComment) {
    storeComments();
    openTable();
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    clickRow(3);
    EXPECT_EQ(editor().toPlainText(), u"second"_s);
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s);
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    clickPart("btnNextComment");
    EXPECT_EQ(tablePart<QLabel>("lblCommentPosition")->text(), u"2 of 2"_s);
    clickPart("btnSide");
    clickRow(1);
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s) << "the panel is not shown";
}

TEST_F(ReadingPageTest, whatIsTypedIsSavedWhenEditingEnds) {
    storeComments();
    openTable();
    const std::vector<std::pair<const char*, std::function<void()>>> ends{
        {"another field", [this] { press(Qt::Key_Tab); }},
        {"another comment", [this] { clickRow(3), clickRow(1); }},
        {"another page", [this] { click("patientBtn"), click("tableBtn"); }},
        {"settings", [this] {
             app->showSetting();
             QApplication::activeModalWidget()->close();
         }}};
    QString text = u"first"_s;
    for (const auto& [how, end] : ends) {
        type(u"+"_s);
        EXPECT_EQ(stored(u"1"_s), text) << "not while it is being typed";
        end();
        EXPECT_EQ(stored(u"1"_s), text += u'+') << how;
        EXPECT_EQ(editor().toPlainText(), text);
    }
    QSignalSpy reloads(&store, &DataStore::reloaded);
    editor().setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(reloads.empty()) << "nothing was changed";
    type(u"+"_s);
    app->mainWndow().close();
    EXPECT_EQ(stored(u"1"_s), text += u'+');
    type(u"+"_s);
    app->terminate();
    EXPECT_EQ(stored(u"1"_s), text += u'+') << "ended from outside";
}

TEST_F(ReadingPageTest, savingACommentLeavesTheListWhereItIs) {
    ReadingList month;
    for (int day = 10; day < 28; ++day)
        for (const int hour : {10, 12, 20})
            month.push_back(reading(u"202603%1%200"_s.arg(day).arg(hour), 120));
    storeReadings(u"P1"_s, month);
    addComment(u"1"_s, u"20260303"_s, u"20260304"_s, u"first"_s);
    openTable();
    const auto& scrolled = *table().verticalScrollBar();
    waitFor([&] { return scrolled.value() > 9; }); // at the latest readings
    for (const int place : {0, 9, 1000}) {
        table().verticalScrollBar()->setValue(place);
        type(u"+"_s);
        press(Qt::Key_Tab);
        EXPECT_EQ(scrolled.value(), std::min(place, scrolled.maximum()));
    }
}

TEST_F(ReadingPageTest, aCommentThatCannotBeSavedStays) {
    storeComments();
    openTable();
    const QByteArray before = dataFile();
    type(u"+"_s);
    replaceDataFile("<ZEL><Patient>");
    press(Qt::Key_Tab);
    EXPECT_EQ(panel.messages.size(), 1);
    clickPart("btnNextComment");
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(panel.questions, QStringList(qtTrId("Warning")));
    const QSignalSpy closed(app.get(), &AppController::closed);
    app->mainWndow().close();
    EXPECT_TRUE(closed.empty());
    EXPECT_TRUE(page("TableViewController").isVisible());
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
    replaceDataFile(before);
    clickPart("btnNextComment");
    EXPECT_EQ(stored(u"1"_s), u"first+"_s);
    EXPECT_EQ(editor().toPlainText(), u"second"_s);
}

TEST_F(ReadingPageTest, whatIsTypedIntoACommentThatAnotherProgramRemovedIsStoredAgain) {
    storeYear();
    const QByteArray without = dataFile();
    addComment(u"1"_s, u"20260301"_s, u"20260302"_s, u"mine"_s);
    openTable();
    type(u"+"_s);
    replaceDataFile(without);
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(stored(u"1"_s), u"none"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(stored(u"1"_s), u"mine+"_s);
}

TEST_F(ReadingPageTest, whatIsTypedForAPatientThatAnotherProgramRemovedIsKept) {
    storeComments();
    const QByteArray both = dataFile();
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s));
    const QByteArray without = dataFile();
    const std::vector<std::function<void()>> discoveries{[this] { press(Qt::Key_Tab); },
                                                         [this] { ASSERT_TRUE(store.loadXML()); }};
    for (const auto& discover : discoveries) {
        replaceDataFile(both);
        ASSERT_TRUE(store.loadXML());
        store.setCurrentID(u"P1"_s);
        openTable();
        type(u"+"_s);
        replaceDataFile(without);
        discover();
        EXPECT_EQ(store.getCurrentID(), u"P2"_s);
        waitFor([this] { return !panel.messages.empty(); });
        EXPECT_TRUE(panel.messages.takeFirst().contains(u"P1"_s));
        EXPECT_EQ(QGuiApplication::clipboard()->text(), u"first+"_s);
        EXPECT_EQ(editor().toPlainText(), QString());
        app.reset();
    }
}

TEST_F(ReadingPageTest, readingsThatAreAddedElsewhereComeIntoView) {
    storeComments();
    openTable();
    ASSERT_TRUE(tablePart<QRadioButton>("viewAll")->isChecked());
    storeReadings(u"P1"_s, {reading(u"202604100800"_s, 133)});
    EXPECT_EQ(dayIn("endDay"), u"10/04/2026"_s);
    EXPECT_EQ(systolic().last(), u"133"_s);
    typeDay("endDay", u"12032026"_s);
    press(Qt::Key_Return);
    storeReadings(u"P1"_s, {reading(u"202604110800"_s, 134)});
    EXPECT_EQ(dayIn("endDay"), u"12/03/2026"_s) << "days that were picked stay";
    clickPart("viewAll");
    EXPECT_EQ(systolic().last(), u"134"_s);
}

TEST_F(ReadingPageTest, deletingACommentAsks) {
    storeComments();
    openTable();
    clickRow(3);
    panel.answers[qtTrId("DeleteComment")] = false;
    clickPart("btnDeleteComment");
    EXPECT_EQ(store.getSelectedComment()->CommentID, u"2"_s);
    panel.answers[qtTrId("DeleteComment")] = true;
    clickPart("btnDeleteComment");
    EXPECT_EQ(stored(u"2"_s), u"none"_s);
    EXPECT_EQ(editor().toPlainText(), u"first"_s);
    clickPart("btnDeleteComment");
    EXPECT_EQ(systolic().size(), 3) << "the placeholder's comment is gone";
    EXPECT_EQ(tablePart<QLabel>("lblCommentBegin")->text(), u"01/01/0001"_s);
    EXPECT_FALSE(editor().isEnabled());
    EXPECT_FALSE(tablePart<QWidget>("btnDeleteComment")->isEnabled());
}

} // namespace zel
