#include "AppTest.h"
#include "app/shell/MenuMnemonics.h"
#include "app/shell/MirrorAction.h"
#include "store/Languages.h"
#include "store/ManualReading.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>

#include <map>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PageMenusTest : public AppTest {
protected:
    PageMenusTest() {
        startsPlugged = false;
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        store.setCurrentID(u"P1"_s);
    }
    void addReadings() {
        for (const char* time : {"08:00", "20:00"})
            ASSERT_TRUE(store.addReading(u"P1"_s,
                                         {typedTime(u"2026-11-20"_s, QLatin1StringView(time)), 140, 90, 60}));
    }
    QAction& entry(const char* name) { return find<QAction>(name); }
    void goTo(Qt::Key page) { press(page, Qt::ControlModifier); }
    /// What stands for something on a page and can be chosen now.
    QStringList enabled() {
        QStringList names;
        for (const auto* action : window().findChildren<MirrorAction*>())
            if (action->isEnabled()) names += action->objectName().chopped(5); // "Entry"
        return names;
    }
    /// Each letter that opens something, of a menu or of the bar. None is only without whose letters are
    /// taken.
    static void expectNoneTwice(const QList<QAction*>& actions) {
        std::map<QChar, QString> seen;
        for (const QAction* action : actions) {
            const QChar letter = mnemonicOf(action->text());
            if (letter.isNull()) continue;
            EXPECT_TRUE(seen.emplace(letter, action->text()).second)
                << qPrintable(action->text()) << " and " << qPrintable(seen[letter]);
        }
        for (const QAction* action : actions) {
            if (action->isSeparator() || !mnemonicOf(action->text()).isNull()) continue;
            for (const QChar letter : action->text())
                EXPECT_TRUE(letter.unicode() > 127 || !letter.isLetterOrNumber()
                            || seen.contains(letter.toUpper()))
                    << qPrintable(action->text()) << " has no key, and " << qPrintable(letter) << " is free";
        }
    }
    /// What Alt and a letter does on any page: a menu of the same letter would open with the second stroke.
    QSet<QChar> onPages() {
        QSet<QChar> found;
        for (const auto* button : window().findChildren<QAbstractButton*>())
            if (button->window() == &window()) found.insert(mnemonicOf(button->text()));
        for (const auto* label : window().findChildren<QLabel*>())
            if (label->buddy() && label->window() == &window()) found.insert(mnemonicOf(label->text()));
        found.remove({});
        return found;
    }
};

} // namespace

TEST_F(PageMenusTest, anEntryCanBeChosenExactlyWhenItsButtonCan) {
    start();
    EXPECT_TRUE(entry("btnNewPatientEntry").isEnabled());
    EXPECT_FALSE(entry("btnSavePatientEntry").isEnabled());
    EXPECT_FALSE(entry("btnDataTransferEntry").isEnabled()) << "no monitor";
    EXPECT_FALSE(entry("newReadingEntry").isEnabled()) << "on another page";
    type("PatientNotes", u"mine"_s);
    EXPECT_TRUE(entry("btnSavePatientEntry").isEnabled());
    entry("btnSavePatientEntry").trigger();
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, u"mine"_s);
    EXPECT_FALSE(entry("btnSavePatientEntry").isEnabled());
    status.update([](MonitorState& state) { state.isConnected = true, state.IDOnDevice = u"P2"_s; });
    EXPECT_TRUE(entry("btnSendIDEntry").isEnabled());
    EXPECT_FALSE(entry("toggleTrendEntry").isEnabled());
    entry("searchPatientsEntry").trigger();
    EXPECT_EQ(QApplication::focusWidget(), &page("searchPatients"));
    addReadings();
    entry("graphBtnEntry").trigger();
    EXPECT_EQ(app->selectedTab(), 1);
    const QStringList onChart = enabled();
    EXPECT_TRUE(onChart.contains(u"toggleTrend"_s) && onChart.contains(u"addComment"_s));
    EXPECT_FALSE(onChart.contains(u"btnNewPatient"_s) || onChart.contains(u"trendApart"_s)
                 || onChart.contains(u"copyRows"_s) || onChart.contains(u"btnSendID"_s));
    for (const QString& name : onChart)
        EXPECT_TRUE(window().findChild<QObject*>(name)) << qPrintable(name);
    const auto days = [this] { return period.getTimePeriod().end - period.getTimePeriod().begin; };
    const auto before = days();
    entry("addDayEntry").trigger();
    EXPECT_GT(days(), before);
    entry("toggleTrendEntry").trigger();
    EXPECT_FALSE(entry("addDayEntry").isEnabled());
    EXPECT_TRUE(entry("trendApartEntry").isEnabled());
    EXPECT_FALSE(entry("addCommentEntry").isEnabled());
}

TEST_F(PageMenusTest, checksFollowThePageInView) {
    addReadings();
    start();
    goTo(Qt::Key_2);
    auto& evening = entry("pmOnlyEntry");
    EXPECT_FALSE(evening.isChecked());
    evening.trigger();
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::evening);
    EXPECT_TRUE(evening.isChecked());
    EXPECT_FALSE(entry("viewBothEntry").isChecked());
    evening.trigger();
    EXPECT_TRUE(evening.isChecked()) << "one of them is chosen";
    goTo(Qt::Key_3);
    EXPECT_TRUE(evening.isChecked() && evening.isEnabled());
    entry("btnShowMamEntry").trigger();
    EXPECT_FALSE(find<QAbstractButton>("btnShowMam").isChecked());
    EXPECT_FALSE(entry("btnShowMamEntry").isChecked());
    click("btnShowMam");
    EXPECT_TRUE(entry("btnShowMamEntry").isChecked());
}

TEST_F(PageMenusTest, noMenuHasALetterTwiceInAnyLanguage) {
    addReadings();
    for (const Language& spoken : languages()) {
        SCOPED_TRACE(spoken.tag.data());
        const ProgramTexts texts(spoken);
        start();
        expectNoneTwice(app->mainWndow().menuBar()->actions());
        type("PatientNotes", QString(spoken.tag.toString()));
        press(Qt::Key_S, Qt::ControlModifier); // there is a step to name
        for (auto* menu : app->mainWndow().menuBar()->findChildren<QMenu*>()) {
            emit menu->aboutToShow();
            expectNoneTwice(menu->actions());
        }
        const QSet<QChar> taken = onPages();
        EXPECT_GT(taken.size(), 10);
        for (const QAction* menu : app->mainWndow().menuBar()->actions()) {
            const QChar letter = mnemonicOf(menu->text());
            EXPECT_FALSE(letter.isNull() || taken.contains(letter)) << qPrintable(menu->text());
        }
        app.reset();
    }
}

TEST_F(PageMenusTest, aMnemonicIsALetterThatIsFree) {
    EXPECT_EQ(mnemonicOf(u"a && &b"_s), u'B');
    EXPECT_TRUE(mnemonicOf(u"a && b&"_s).isNull());
    EXPECT_EQ(withMnemonic(u"Copy rows"_s, {}), u"&Copy rows"_s);
    EXPECT_EQ(withMnemonic(u"Copy rows"_s, {u'C'}), u"Copy &rows"_s);
    EXPECT_EQ(withMnemonic(u"Copy rows"_s, {u'C', u'R'}), u"C&opy rows"_s);
    EXPECT_EQ(withMnemonic(u"On"_s, {u'O', u'N'}), u"On"_s);
    EXPECT_EQ(withMnemonic(u"複製列"_s, {u'A'}), u"複製列(&B)"_s);
}

TEST_F(PageMenusTest, theListOfKeysIsTrue) {
    addReadings();
    start();
    press(Qt::Key_F1);
    auto& list = find<QDialog>("KeysDialog");
    ASSERT_TRUE(list.isVisible());
    EXPECT_FALSE(list.isModal());
    expectNamed(list);
    auto& table = find<QTableWidget>("tblKeys");
    std::map<QString, QString> whatByKey;
    for (int row = 0; row < table.rowCount(); ++row)
        whatByKey.emplace(table.item(row, 2)->text() + u'@' + table.item(row, 0)->text(),
                          table.item(row, 1)->text());
    EXPECT_EQ(whatByKey.size(), static_cast<std::size_t>(table.rowCount()))
        << "a key means one thing in a place";
    const auto place = [&](const char* page) { return u'@' + find<QWidget>(page).accessibleName(); };
    EXPECT_EQ(whatByKey[u"Ctrl+N"_s + place("PatientViewController")], qtTrId("menuNewPatient"));
    EXPECT_EQ(whatByKey[u"Left, Right"_s + place("GraphViewController")], qtTrId("keysMovePeriod"));
    EXPECT_TRUE(whatByKey.contains(u"Alt+1"_s + place("GraphViewController"))) << "of no menu";
    EXPECT_EQ(whatByKey[u"F6@"_s + qtTrId("monitorPanel")], qtTrId("keysToMonitorBar"));
    EXPECT_TRUE(opened.empty());
    waitFor([&] { return list.isActiveWindow(); });
    QTest::keyClick(&table, Qt::Key_F1);
    waitFor([&] { return !opened.empty(); }); // once more for the manual
    list.close();
}

TEST_F(PageMenusTest, theKeyOfAnEntryDoesWhatItsButtonDoes) {
    addReadings();
    start();
    const auto pressKeyOf = [this](const char* name) {
        const QKeyCombination key = entry(name).shortcut()[0];
        press(key.key(), key.keyboardModifiers());
    };
    for (const auto& [name, shown] :
         {std::pair("graphBtnEntry", 1), {"tableBtnEntry", 2}, {"patientBtnEntry", 0}}) {
        pressKeyOf(name);
        EXPECT_EQ(app->selectedTab(), shown) << name;
    }
    pressKeyOf("searchPatientsEntry");
    EXPECT_EQ(QApplication::focusWidget(), &page("searchPatients"));
    type("PatientNotes", u"mine"_s);
    pressKeyOf("btnSavePatientEntry");
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, u"mine"_s);
    pressKeyOf("btnNewPatientEntry");
    EXPECT_EQ(store.getCurrentID(), u"-"_s);
    EXPECT_EQ(entry("btnDataTransferEntry").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_D));
}

TEST_F(PageMenusTest, downloadsAreListedTheLatestFirst) {
    replaceDataFile("<ZEL><SystemSetting><DateFormat>dd mm yyyy</DateFormat><TimeFormat>12-hours</TimeFormat>"
                    "</SystemSetting><Patient><ID>P1</ID></Patient><Patient><ID>P2</ID></Patient>"
                    "<DataTransferLog><ID>P1</ID><TransferDate>2026-01-09T23:05:00+01:00</TransferDate>"
                    "<NumofRecord>7</NumofRecord></DataTransferLog>"
                    "<DataTransferLog><ID>P1</ID><TransferDate>2026-03-01T00:10:00+01:00</TransferDate>"
                    "<NumofRecord>0</NumofRecord></DataTransferLog>"
                    "<DataTransferLog><ID>P1</ID><NumofRecord>2</NumofRecord></DataTransferLog></ZEL>");
    ASSERT_TRUE(store.loadXML());
    start();
    entry("showDownloads").trigger();
    auto& dialog = find<QDialog>("DownloadsDialog");
    ASSERT_TRUE(dialog.isVisible());
    expectNamed(dialog);
    const auto& table = find<QTableWidget>("tblDownloads");
    const auto row = [&](int at) {
        QStringList texts;
        for (int column = 0; column < table.columnCount(); ++column)
            texts += table.item(at, column)->text();
        return texts;
    };
    ASSERT_EQ(table.rowCount(), 3);
    EXPECT_EQ(row(0), (QStringList{u"01/03/2026"_s, qtTrId("%1 A").arg(u"12:10"_s), u"0"_s}));
    EXPECT_EQ(row(1), (QStringList{u"09/01/2026"_s, qtTrId("%1 P").arg(u"11:05"_s), u"7"_s}));
    EXPECT_EQ(row(2), (QStringList{qtTrId("downloadDayUnknown"), {}, u"2"_s}));
    click("btnCloseDownloads");
    store.setCurrentID({});
    EXPECT_FALSE(entry("showDownloads").isEnabled());
}

TEST_F(PageMenusTest, aRightClickOffersWhatCanBeDoneWithThePatientUnderIt) {
    start();
    auto& list = find<QTableView>("tblPatients");
    auto& menu = find<QMenu>("patientMenu");
    const auto rightClick = [&](int row) {
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &event);
        QCoreApplication::processEvents();
    };
    rightClick(1);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    expectNoneTwice(menu.actions());
    EXPECT_FALSE(entry("btnDataTransferHere").isEnabled());
    menu.close();
    type("PatientNotes", u"mine"_s);
    panel.cancelsSaving = true;
    panel.whenAsked = [] {
        QDialog question; // as the real one, which has a loop of its own
        question.setModal(true);
        QTimer::singleShot(0, &question, &QDialog::reject);
        question.exec();
    };
    rightClick(0);
    EXPECT_EQ(panel.questions, QStringList(qtTrId("SavePatient")));
    EXPECT_EQ(store.getCurrentID(), u"P2"_s) << "cancelled";
    EXPECT_FALSE(menu.isVisible()) << "not over a question, nor for another patient";
    panel.whenAsked = [] {};
    panel.cancelsSaving = false;
    entry("btnDeletePatientHere").trigger();
    EXPECT_FALSE(store.validIDinXML(u"P2"_s));
}

} // namespace zel
