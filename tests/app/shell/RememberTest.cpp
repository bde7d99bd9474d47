#include "AppTest.h"
#include "app/graph/GraphViewController.h"
#include "app/settings/SelectFolderController.h"
#include "app/shell/FolderName.h"
#include "app/shell/UnsavedFile.h"
#include "app/table/ReadingTableModel.h"
#include "store/ManualReading.h"

#include <QHeaderView>
#include <QRadioButton>
#include <QScreen>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class RememberTest : public AppTest {
protected:
    RememberTest() {
        startsPlugged = false;
        addPatient(u"QXZ-1"_s, u"Adams"_s);
        addPatient(u"QXZ-2"_s, u"Wolpertinger"_s);
        for (int day = 1; day < 9; ++day)
            EXPECT_TRUE(store.addReading(u"QXZ-2"_s, {typedTime(u"2026-01-0%1"_s.arg(day), u"08:00"_s),
                                                      static_cast<std::uint32_t>(140 - day), 90, 60}));
    }
    QString file() { return viewMemoryFile(home.path(), store.getZELXMLPath()); }
    /// Starts as a new process would.
    void begin() {
        app.reset();
        store.setCurrentID({});
        period.setChangeUser(true);
        period.setWeekRule(AverageRule::esh);
        memory = std::make_unique<ViewMemory>(file());
        start();
    }
    void end() {
        app->closeApplicaiton();
        app.reset();
    }
    void beginAnew() {
        end();
        begin();
    }
    void choosePatient(int row) {
        find<QTableView>("tblPatients").selectRow(row);
        QCoreApplication::processEvents();
    }
    void choose(const char* button) {
        find<QWidget>("TableViewController").findChild<QRadioButton*>(QLatin1StringView(button))->click();
    }
    QHeaderView& header() { return *find<QTableView>("tblReadings").horizontalHeader(); }
    QString inView() {
        for (const char* name : {"PatientViewController", "GraphViewController", "TableViewController"})
            if (page(name).isVisible()) return QLatin1StringView(name);
        return {};
    }
    QByteArray written() {
        QFile kept(file());
        return kept.open(QIODevice::ReadOnly) ? kept.readAll() : QByteArray();
    }
    void useAll() {
        begin();
        app->mainWndow().showNormal();
        app->mainWndow().setGeometry(30, 40, 700, 600);
        choosePatient(1);
        click("tableBtn");
        choose("viewLast7");
        choose("amOnly");
        find<QTableView>("tblReadings").sortByColumn(ReadingTableModel::sys, Qt::AscendingOrder);
        header().moveSection(2, 0);
        header().resizeSection(ReadingTableModel::pulse, 123);
        period.setWeekRule(AverageRule::nice);
    }
};

} // namespace

TEST_F(RememberTest, theWindowComesBackAsItWasLeft) {
    useAll();
    const QByteArray data = dataFile();
    beginAnew();
    EXPECT_EQ(app->mainWndow().geometry(), QRect(30, 40, 700, 600));
    EXPECT_FALSE(app->mainWndow().isMaximized());
    EXPECT_EQ(inView(), u"TableViewController"_s);
    EXPECT_EQ(store.getCurrentID(), u"QXZ-2"_s);
    EXPECT_EQ(find<QTableView>("tblPatients").currentIndex().row(), 1);
    EXPECT_EQ(period.getChoice(), PeriodChoice::last7);
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::morning);
    EXPECT_EQ(period.getWeekRule(), AverageRule::nice);
    EXPECT_EQ(find<QTableView>("tblReadings").model()->rowCount(), 7);
    EXPECT_EQ(header().sortIndicatorSection(), ReadingTableModel::sys);
    EXPECT_EQ(header().visualIndex(2), 0);
    EXPECT_EQ(header().sectionSize(ReadingTableModel::pulse), 123);
    EXPECT_EQ(dataFile(), data);
    EXPECT_TRUE(panel.messages.empty());
    for (const char* secret : {"QXZ", "Wolpertinger", "Kim", "Adams"})
        EXPECT_FALSE(written().contains(secret)) << secret;
    const QByteArray before = written();
    beginAnew();
    EXPECT_EQ(written(), before) << "nothing wanders from start to start";
}

TEST_F(RememberTest, theChartPagesViewAndAMaximizedWindowComeBack) {
    begin();
    choosePatient(1);
    click("graphBtn");
    find<GraphViewController>("GraphViewController").showView(3);
    click("trendApart");
    app->mainWndow().showMaximized();
    beginAnew();
    EXPECT_EQ(inView(), u"GraphViewController"_s);
    EXPECT_EQ(find<GraphViewController>("GraphViewController").drawViewState(), 3);
    EXPECT_TRUE(find<GraphViewController>("GraphViewController").isTrendApart());
    EXPECT_FALSE(written().contains("weekRule")) << "the usual one";
    EXPECT_TRUE(app->mainWndow().isMaximized());
    app->terminate();
    app.reset();
    EXPECT_TRUE(written().contains("\"trend\"")) << "also when the session ends";
}

TEST_F(RememberTest, whatIsGoneIsAsAtAFirstStart) {
    useAll();
    end();
    const PatientModel gone = *store.getPatientByID(u"QXZ-2"_s);
    ASSERT_TRUE(store.deleteXMLPatient(gone.ID) && store.loadXML());
    begin();
    EXPECT_EQ(store.getCurrentID(), u"QXZ-1"_s);
    EXPECT_EQ(period.getChoice(), PeriodChoice::all) << "the usual days of a patient, not another's";
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::both);
    EXPECT_EQ(inView(), u"TableViewController"_s);
    end();
    ASSERT_TRUE(store.deleteXMLPatient(u"QXZ-1"_s) && store.loadXML());
    begin();
    EXPECT_EQ(inView(), u"PatientViewController"_s) << "nobody has a table";
    EXPECT_TRUE(panel.messages.empty());
}

TEST_F(RememberTest, daysThatShowNothingAnyMoreAreTheUsualOnes) {
    useAll();
    end();
    store.setCurrentID(u"QXZ-2"_s);
    ASSERT_TRUE(store.deleteReadings(ReadingList(store.getReadingForCurID())));
    ASSERT_TRUE(store.addReading(u"QXZ-2"_s, {typedTime(u"2026-01-05"_s, u"20:00"_s), 140, 90, 60}));
    begin();
    EXPECT_EQ(store.getCurrentID(), u"QXZ-2"_s);
    EXPECT_EQ(period.getHalfOfDay(), HalfOfDay::both) << "there is none in the morning";
    EXPECT_EQ(find<QTableView>("tblReadings").model()->rowCount(), 1);
}

TEST_F(RememberTest, aDamagedFileAndAForgottenOneBeginAnewWithoutAWord) {
    for (const bool isForgotten : {false, true}) {
        useAll();
        end();
        if (isForgotten) {
            ASSERT_TRUE(ViewMemory(file()).forget());
        } else {
            QFile damaged(file());
            ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
            damaged.write(
                R"({"window": "AAAA", "page": 7, "patient": [], "period": {"days": "ever", "half": 1},
                              "table": {"order": "x", "letters": 3}, "chart": {}, "folder": [],
                              "weekRule": "who", "trendApart": "yes"})");
        }
        begin();
        EXPECT_TRUE(app->mainWndow().isMaximized());
        EXPECT_EQ(inView(), u"PatientViewController"_s);
        EXPECT_EQ(store.getCurrentID(), u"QXZ-1"_s);
        EXPECT_EQ(header().sortIndicatorSection(), ReadingTableModel::date);
        EXPECT_EQ(header().visualIndex(2), 2);
        EXPECT_EQ(period.getWeekRule(), AverageRule::esh);
        EXPECT_FALSE(find<GraphViewController>("GraphViewController").isTrendApart());
        EXPECT_TRUE(panel.messages.empty());
        end();
    }
}

TEST_F(RememberTest, whatWasTypedAndNotSavedIsOfferedWhereItIsSeen) {
    useAll();
    end();
    const QJsonObject draft{
        {u"page"_s, u"PatientViewController"_s}, {u"ID"_s, u"QXZ-1"_s}, {u"name"_s, u"Kim Adams"_s}};
    ASSERT_TRUE(UnsavedFile(store.getZELXMLPath()).write({draft}));
    begin();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("unsavedTitle")));
    EXPECT_EQ(inView(), u"PatientViewController"_s);
    EXPECT_EQ(store.getCurrentID(), u"QXZ-1"_s);
    EXPECT_EQ(header().sortIndicatorSection(), ReadingTableModel::sys) << "the rest is as it was";
    EXPECT_EQ(period.getWeekRule(), AverageRule::nice);
}

TEST_F(RememberTest, aWindowOfAScreenThatIsGoneIsSeen) {
    begin();
    app->mainWndow().showNormal();
    app->mainWndow().setGeometry(5000, 4000, 700, 600);
    beginAnew();
    const QRect screen = app->mainWndow().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(app->mainWndow().geometry().center()));
}

TEST_F(RememberTest, theFolderIsKeptAndNamesNobody) {
    const QString folder = home.filePath(u"Exports/Wolpertinger, Kim/2026"_s);
    begin();
    memory->set(u"folder"_s, folder);
    end();
    EXPECT_EQ(ViewMemory(file()).value(u"folder"_s), home.filePath(u"Exports"_s));
    EXPECT_FALSE(written().contains("Wolpertinger"));
    const auto& patients = store.getPatientArray();
    for (const auto& [given, kept] : {std::pair(u"/a/b"_s, u"/a/b"_s),
                                      {u"/a/of_WOLPERTINGER/b"_s, u"/a"_s},
                                      {u"/a/Wolpertingers"_s, u"/a/Wolpertingers"_s},
                                      {u"/a/qxz-2"_s, u"/a"_s},
                                      {u"/a/qxz/2"_s, u"/a/qxz/2"_s},
                                      {u"/adams"_s, u"/"_s}})
        EXPECT_EQ(folderNamingNobody(given, patients), kept) << qPrintable(given);
}

} // namespace zel
