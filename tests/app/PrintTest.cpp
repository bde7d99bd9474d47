#include "AppFixture.h"
#include "app/PrintController.h"
#include "report/ReportPdf.h"
#include "support/FullDisk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PrintTest : public AppTest {
protected:
    PrintTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        store.setCurrentID(u"P1"_s);
        startsPlugged = false;
        printers.known = {u"Office"_s, u"Ward"_s};
        chooser.pdf = home.filePath(u"report.pdf"_s);
    }
    void storeReadings(int total) {
        ReadingList list;
        for (int i = 0; i < total; ++i) {
            ReadingModel& reading = list.emplace_back();
            reading.ReadingDate = StrToDate(u"202603010800"_s, u"yyyyMMddHHmm"_s).value_or(Instant{})
                                  + std::chrono::hours(12 * i);
            reading.sys = 120;
            reading.dia = 80;
            reading.pulse = 60;
        }
        ASSERT_TRUE(store.newDataTransfer(list));
    }
    void openPrint(Qt::Key tab) {
        press(tab, Qt::ControlModifier);
        press(Qt::Key_P, Qt::ControlModifier);
        ASSERT_TRUE(window().isVisible());
    }
    QDialog& window() { return find<QDialog>("PrintController"); }
    bool isWindowOpen() {
        const auto* dialog = app->mainWndow().findChild<QDialog*>(u"PrintController"_s);
        return dialog && dialog->isVisible();
    }
    void choose(Section section) {
        find<QComboBox>("printOption").setCurrentText(facts(section).text());
        ASSERT_EQ(find<QComboBox>("printOption").currentText(), facts(section).text());
    }
    QImage preview() { return find<QWidget>("previewView").grab().toImage(); }
    QByteArray pdf() const {
        QFile file(chooser.pdf);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(PrintTest, theSectionsAreThoseOfTheTab) {
    using enum Section;
    storeReadings(3);
    start();
    struct Case {
        Qt::Key tab;
        std::vector<Section> offered;
    };
    for (const Case& c : {Case{Qt::Key_1, {PatientProfile}},
                          {Qt::Key_2, {graph, histogram, correlation, comment, SWStatistics}},
                          {Qt::Key_3, {table, comment, SWStatistics}}}) {
        openPrint(c.tab);
        const auto& list = find<QComboBox>("printOption");
        QStringList texts, offered;
        for (int i = 0; i < list.count(); ++i)
            texts += list.itemText(i);
        for (const Section section : c.offered)
            offered += facts(section).text();
        EXPECT_EQ(texts, offered);
        EXPECT_EQ(list.currentIndex(), 0);
        click("cancelPrint");
        EXPECT_FALSE(window().isVisible());
    }
    EXPECT_TRUE(printOptions(3).empty());
    EXPECT_TRUE(printers.printed.empty());
}

TEST_F(PrintTest, thePagesAreTurnedOneByOneWithinTheirLimits) {
    storeReadings(70);
    start();
    press(Qt::Key_3, Qt::ControlModifier);
    find<QWidget>("viewAll").setFocus();
    click("viewAll");
    openPrint(Qt::Key_3);
    ASSERT_EQ(text("pageText"), u"1/3"_s);
    EXPECT_FALSE(page("gotoPreviousPage").isEnabled());
    QTest::keyClick(&window(), Qt::Key_PageUp);
    EXPECT_EQ(text("pageText"), u"1/3"_s);
    QImage before = preview();
    for (const QString& counter : {u"2/3"_s, u"3/3"_s}) {
        QElapsedTimer timer;
        timer.start();
        click("gotoNextPage");
        const QImage now = preview();
        EXPECT_LT(timer.elapsed(), 500) << "far more than a page turn may take";
        EXPECT_EQ(text("pageText"), counter);
        EXPECT_NE(now, before);
        before = now;
    }
    EXPECT_FALSE(page("gotoNextPage").isEnabled());
    QTest::keyClick(&window(), Qt::Key_PageDown);
    EXPECT_EQ(text("pageText"), u"3/3"_s);
    click("gotoPreviousPage");
    EXPECT_EQ(text("pageText"), u"2/3"_s);
    choose(Section::comment);
    EXPECT_EQ(text("pageText"), u"1/0"_s) << "another section begins at its first page";
}

TEST_F(PrintTest, anEmptyTableIsPageOneOfNoneAndIsNeitherPrintedNorSaved) {
    storeReadings(1);
    store.setCurrentID({});
    addPatient(u"P2"_s, u"Baker"_s);
    store.setCurrentID(u"P2"_s);
    start();
    openPrint(Qt::Key_3);
    EXPECT_EQ(text("pageText"), u"1/0"_s);
    EXPECT_EQ(text("lblNote"), qtTrId("previewNoPage"));
    click("printAndClose");
    click("savePdf");
    EXPECT_EQ(panel.messages, (QStringList{qtTrId("Warning") + u": "_s + qtTrId("printNoData"),
                                           qtTrId("Warning") + u": "_s
                                               + describe(ReportError{ReportErrorCode::noData, {}, {}})}));
    EXPECT_TRUE(printers.printed.empty());
    EXPECT_TRUE(chooser.asked.empty());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(PrintTest, thePractitionersDetailsAreShownAtOnce) {
    store.getSetting().physicianAddress = u"Dr. Grey\nHarbour Street 4"_s;
    start();
    openPrint(Qt::Key_1);
    const QImage without = preview();
    click("printAddAddress");
    EXPECT_NE(preview(), without);
    click("printAddAddress");
    EXPECT_EQ(preview(), without);
}

TEST_F(PrintTest, withoutAPrinterOnlyTheFileCanBeHad) {
    printers.known.clear();
    start();
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(panel.messages, QStringList(qtTrId("NoPrnter") + u": "_s + qtTrId("NoPrnterMsg")));
    EXPECT_FALSE(isWindowOpen());
    press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(isWindowOpen());
    EXPECT_FALSE(page("printAndClose").isEnabled());
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_TRUE(pdf().startsWith("%PDF"));
}

TEST_F(PrintTest, printsOnTheChosenPrinterAndSaysWhenItHasGone) {
    start();
    openPrint(Qt::Key_1);
    click("printAndClose");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(text("lblOutcome"), qtTrId("printDone").arg(u"Office"_s));
    const auto choosePrinter = [this](const QString& name, const char* button) {
        openPrint(Qt::Key_1);
        click("printerSelection");
        find<QComboBox>("printerList").setCurrentText(name);
        click(button);
    };
    choosePrinter(u"Ward"_s, "printerCancel");
    click("printAndClose");
    choosePrinter(u"Ward"_s, "printerOK");
    click("printAndClose");
    EXPECT_EQ(printers.printed, (QStringList{u"Office: PatientProfile"_s, u"Office: PatientProfile"_s,
                                             u"Ward: PatientProfile"_s}));
    openPrint(Qt::Key_1);
    printers.known.removeLast();
    click("printAndClose");
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("Warning") + u": "_s + qtTrId("printerGone").arg(u"Ward"_s)));
    EXPECT_TRUE(window().isVisible()) << "to choose another one";
    EXPECT_EQ(printers.printed.size(), 3);
}

TEST_F(PrintTest, aPdfIsWrittenWholeOrNotAtAll) {
    const QString folder = home.filePath(u"locked"_s), good = chooser.pdf;
    start();
    openPrint(Qt::Key_1);
    const QStringList files = QDir(home.path()).entryList(QDir::Files);
    const QByteArray data = dataFile();
    const auto refused = [&](const QString& path) {
        panel.messages.clear();
        chooser.pdf = path;
        click("savePdf");
        return panel.messages.size() == 1 && panel.messages.first().contains(path);
    };
    EXPECT_TRUE(refused(home.filePath(u"nowhere/report.pdf"_s)));
    EXPECT_TRUE(refused(store.getZELXMLPath()));
    EXPECT_EQ(dataFile(), data);
    {
        const FullDisk full(2000);
        EXPECT_TRUE(refused(good));
    }
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), files) << "no half file";
    panel.messages.clear();
    chooser.pdf.clear();
    click("savePdf");
    EXPECT_TRUE(panel.messages.empty()) << "the user changed their mind";
    chooser.pdf = good;
    click("savePdf");
    EXPECT_EQ(chooser.asked.last(), u"P1-PatientProfile.pdf"_s);
    EXPECT_TRUE(pdf().startsWith("%PDF"));
    EXPECT_EQ(text("lblNote"), qtTrId("savedPdf").arg(good));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(PrintTest, theWindowSurvivesThatItsRecordsAreReadAnew) {
    storeReadings(30);
    start();
    openPrint(Qt::Key_3);
    const QImage before = preview();
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(preview(), before);
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_FALSE(window().isVisible()) << "nobody is left";
    press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(panel.messages.last(), qtTrId("Warning") + u": "_s + qtTrId("printNoPatient"));
    EXPECT_FALSE(window().isVisible());
}

TEST_F(PrintTest, helpOpensTheManual) {
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.path()));
    start();
    press(Qt::Key_F1);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened.first().startsWith(home.path()));
    QFile manual(opened.first());
    ASSERT_TRUE(manual.open(QFile::ReadOnly));
    EXPECT_TRUE(manual.readAll().startsWith("%PDF"));
    EXPECT_TRUE(panel.messages.empty());
    hasViewer = false;
    press(Qt::Key_F1);
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("OpenHelpErrorTitle") + u": "_s + qtTrId("OpenHelpErrorMsg")));
    const QString blocked = home.filePath(u"file"_s);
    QFile(blocked).open(QFile::WriteOnly);
    EXPECT_TRUE(unpackHelp(u":/help.pdf"_s, blocked).isEmpty());
    EXPECT_TRUE(unpackHelp(u":/none.pdf"_s, home.path()).isEmpty());
}

TEST_F(PrintTest, everyControlSaysWhatItIs) {
    start();
    openPrint(Qt::Key_1);
    for (const QWidget* control : window().findChildren<QWidget*>()) {
        if (control->window() != &window() || control->focusPolicy() == Qt::NoFocus) continue;
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
    }
}

} // namespace zel
