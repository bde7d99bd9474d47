#include "AppTest.h"
#include "app/graph/GraphViewController.h"
#include "app/table/ReadingTableModel.h"
#include "store/FileLock.h"
#include "support/ReadingPageTest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QToolButton>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class ReadingPagesTest : public AppTest, protected ReadingSteps {
protected:
    ReadingPagesTest() : ReadingSteps(store) {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        startsPlugged = false;
    }
    [[nodiscard]] QWidget& readingPage() override { return page(pageName); }
    const char* pageName = "TableViewController";
    void openTable() {
        start();
        click("tableBtn");
        app->mainWndow().resize(1300, 750);
    }
    QString lastSystolic() {
        const auto* model = part<QTableView>("tblReadings").model();
        return model->index(model->rowCount() - 1, ReadingTableModel::sys).data().toString();
    }
};

} // namespace

TEST_F(ReadingPagesTest, theSelectionIsKeptByIDWhenTheRosterIsReadAnew) {
    start();
    EXPECT_EQ(store.getCurrentID(), u"P1"_s) << "the first patient, as nobody was selected";
    press(Qt::Key_Down);
    ASSERT_EQ(store.getCurrentID(), u"P2"_s);
    addPatient(u"P0"_s, u"Aaron"_s);
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    EXPECT_EQ(find<QTableView>("tblPatients").currentIndex().row(), 2);
    ASSERT_TRUE(store.deleteXMLPatient(u"P2"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(store.getCurrentID(), u"P0"_s);
}

TEST_F(ReadingPagesTest, pagesFollowTheSelectedPatient) {
    storeReadings(u"P2"_s, {reading(u"202603050800"_s, 131), reading(u"202603010800"_s, 121)});
    store.setCurrentID(u"P1"_s);
    start();
    click("tableBtn");
    EXPECT_TRUE(page("noReadings").isVisible());
    click("patientBtn");
    press(Qt::Key_Down);
    click("graphBtn");
    const auto* detail = page("GraphViewController").findChild<QLabel*>(u"lblDetail"_s);
    EXPECT_EQ(detail->text(), u"2 readings, from 01/03/2026 to 05/03/2026"_s);
    const auto& graph = find<GraphViewController>("GraphViewController");
    storeReadings(u"P2"_s, {reading(u"200001010000"_s, 188)});
    period.setSelectViewIndex(ViewSelection::viewAll);
    period.setIncludeNoDatetimeData(true);
    EXPECT_TRUE(detail->text().endsWith(u". Counted: 2 readings; 1 undated one not counted"_s))
        << qPrintable(detail->text());
    click("toggleHistogram");
    EXPECT_EQ(detail->text(), u"3 readings, from 01/03/2026 to 05/03/2026"_s);
    EXPECT_EQ(graph.drawViewState(), 1);
    click("tableBtn");
    app->displayAfterDataTransfer();
    EXPECT_TRUE(graph.isVisible());
    EXPECT_EQ(graph.drawViewState(), 0);
}

TEST_F(ReadingPagesTest, theMarkColumnIsTitledByTheAttachedMonitor) {
    plan.model = "41"; // reports atrial fibrillation
    startsPlugged = true;
    startConnected();
    const auto* model = part<QTableView>("tblReadings").model();
    EXPECT_EQ(model->headerData(ReadingTableModel::mark, Qt::Horizontal).toString(), qtTrId("afib"));
}

TEST_F(ReadingPagesTest, paperShowsWhatThePagesDo) {
    ReadingModel plain = reading(u"202603010800"_s, 121), evening = reading(u"202603012000"_s, 131);
    plain.Arrhythmia = evening.Arrhythmia = 0; // of a monitor that knows none: the attached one decides
    storeReadings(u"P1"_s, {plain, evening});
    plan.model = "41";
    startsPlugged = true;
    printers.known = {u"Office"_s};
    startConnected();
    struct Shown {
        bool mam, pad, isAfib;
        int bloodBase, pulseBase;
        ViewSelection view;
        int section;
        bool operator==(const Shown&) const = default;
    };
    Shown onPaper{};
    printers.whenPrinted = [&](const PrintView& view) {
        const ReportSource& report = view.report();
        onPaper = {report.getShowMam,
                   report.getShowPad,
                   report.getIsAfib,
                   report.bloodChart.iScaleBase,
                   report.lowerChart.iScaleBase,
                   report.lowerChart.showDataType,
                   find<QComboBox>("printOption").currentIndex()};
    };
    const auto print = [&] {
        press(Qt::Key_P, Qt::ControlModifier);
        click("printAndClose");
        return onPaper;
    };
    click("graphBtn");
    const Shown first = print();
    EXPECT_TRUE(first
                == (Shown{true, true, true, startScaleBase, startScaleBase, ViewSelection::viewAll, 1}));
    find<QScrollBar>("bloodScroller").setValue(0);
    Shown next = print();
    EXPECT_NE(next.bloodBase, first.bloodBase);
    EXPECT_EQ(next.pulseBase, first.pulseBase);
    find<QScrollBar>("pulseScroller").setValue(0);
    EXPECT_NE(print().pulseBase, first.pulseBase);
    click("toggleCorrelation");
    EXPECT_EQ(print().section, 3);
    click("tableBtn");
    for (const auto& [box, shown] : {std::pair("btnShowMam", &Shown::mam), {"btnShowPad", &Shown::pad}}) {
        for (const bool isShown : {false, true}) {
            clickPart(box);
            EXPECT_EQ(print().*shown, isShown) << box;
        }
    }
    clickPart("pmOnly");
    EXPECT_EQ(print().view, ViewSelection::pmOnly);
}

TEST_F(ReadingPagesTest, aNewlyChosenPatientOpensInTheViewThatSuitsTheData) {
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
    EXPECT_TRUE(part<QRadioButton>("viewAll").isChecked());
    EXPECT_EQ(dayIn("beginDay"), u"01/02/2026"_s);
    EXPECT_FALSE(period.isChangeUser());
    clickPart("amOnly");
    click("patientBtn");
    click("tableBtn");
    EXPECT_TRUE(part<QRadioButton>("amOnly").isChecked()) << "the same patient's view stays";
}

TEST_F(ReadingPagesTest, readingsThatAreAddedElsewhereComeIntoView) {
    storeComments();
    openTable();
    ASSERT_TRUE(part<QRadioButton>("viewAll").isChecked());
    storeReadings(u"P1"_s, {reading(u"202604100800"_s, 133)});
    EXPECT_EQ(dayIn("endDay"), u"10/04/2026"_s);
    EXPECT_EQ(lastSystolic(), u"133"_s);
    typeDay("endDay", u"12032026"_s);
    press(Qt::Key_Return);
    storeReadings(u"P1"_s, {reading(u"202604110800"_s, 134)});
    EXPECT_EQ(dayIn("endDay"), u"12/03/2026"_s) << "days that were picked stay";
    clickPart("viewAll");
    EXPECT_EQ(lastSystolic(), u"134"_s);
}

TEST_F(ReadingPagesTest, movingTheChartEndsTheChoiceOfAllDays) {
    storeComments();
    openTable();
    for (const char* mover : {"minusDay", "addDay"}) {
        clickPart("viewAll");
        clickPart("btnAverage");
        click("graphBtn");
        click(mover);
        click("tableBtn");
        EXPECT_FALSE(part<QRadioButton>("viewAll").isChecked()) << mover;
        EXPECT_FALSE(part<QCheckBox>("btnViewAll").isChecked()) << mover;
        EXPECT_FALSE(period.getIncludeNoDatetimeData()) << mover;
    }
}

TEST_F(ReadingPagesTest, whatIsTypedIsSavedWhenThePageIsLeft) {
    storeComments();
    openTable();
    const std::vector<std::pair<const char*, std::function<void()>>> ends{
        {"another page", [this] { click("patientBtn"), click("tableBtn"); }},
        {"settings",
         [this] {
             app->showSetting();
             QApplication::activeModalWidget()->close();
         }},
        {"the window is closed", [this] { app->mainWndow().close(); }},
        {"ended from outside", [this] { app->terminate(); }}};
    QString text = u"first"_s;
    for (const auto& [how, end] : ends) {
        typeComment(u"+"_s);
        EXPECT_EQ(stored(u"1"_s), text) << "not while it is being typed";
        end();
        EXPECT_EQ(stored(u"1"_s), text += u'+') << how;
        EXPECT_EQ(editor().toPlainText(), text);
    }
}

TEST_F(ReadingPagesTest, whatIsTypedWhenTheProgramIsEndedFromOutsideIsNotLost) {
    storeComments();
    const std::pair<const char*, const char*> pages[]{{"graphBtn", "GraphViewController"},
                                                      {"tableBtn", "TableViewController"}};
    for (const auto& [tab, name] : pages) {
        pageName = name;
        start();
        click(tab);
        const QString before = stored(u"1"_s);
        typeComment(u"+"_s);
        {
            FileLock other(store.getZELXMLPath());
            ASSERT_EQ(other.tryTake(), FileLock::Attempt::taken);
            app->terminate();
        }
        EXPECT_EQ(stored(u"1"_s), before) << "another program was at work";
        panel.questions.clear();
        start();
        EXPECT_EQ(panel.questions, QStringList(qtTrId("unsavedTitle")));
        EXPECT_EQ(stored(u"1"_s), before + u'+') << tab;
        click(tab);
        typeComment(u"-"_s);
        app->terminate();
        EXPECT_EQ(stored(u"1"_s), before + u"+-"_s) << tab;
    }
}

TEST_F(ReadingPagesTest, aCommentThatCannotBeSavedHoldsThePage) {
    storeComments();
    openTable();
    typeComment(u"+"_s);
    replaceDataFile("<ZEL><Patient>");
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(panel.questions, QStringList(qtTrId("Warning")));
    const QSignalSpy closed(app.get(), &AppController::closed);
    app->mainWndow().close();
    EXPECT_TRUE(closed.empty());
    app->showPrint();
    EXPECT_EQ(app->mainWndow().findChild<QDialog*>(u"PrintController"_s), nullptr) << "paper would lack it";
    EXPECT_TRUE(readingPage().isVisible());
    EXPECT_EQ(editor().toPlainText(), u"first+"_s);
}

TEST_F(ReadingPagesTest, whatIsTypedForAPatientThatAnotherProgramRemovedIsKept) {
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
        typeComment(u"+"_s);
        replaceDataFile(without);
        discover();
        EXPECT_EQ(store.getCurrentID(), u"P2"_s);
        waitFor([this] { return !panel.messages.empty(); });
        EXPECT_TRUE(panel.messages.value(0).contains(u"P1"_s));
        panel.messages.clear();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), u"first+"_s);
        EXPECT_EQ(editor().toPlainText(), QString());
        app.reset();
    }
}

} // namespace zel
