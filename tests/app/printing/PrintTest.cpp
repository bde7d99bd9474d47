#include "app/printing/PrintController.h"
#include "report/ReportPdf.h"
#include "report/UsualPaper.h"
#include "support/FullDisk.h"
#include "support/ScriptedChooser.h"
#include "support/ScriptedPrinters.h"
#include "support/WidgetTest.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The print window over an empty one.
class PrintTest : public WidgetTest {
protected:
    PrintTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        store.setCurrentID(u"P1"_s);
        printers.known = {u"Office"_s, u"Ward"_s};
        chooser.pdf = home.filePath(u"report.pdf"_s);
        show(new QWidget);
        printing = new PrintController({store, period, clock, panel, chooser, printers}, host.get());
        QObject::connect(printing, &PrintController::said, printing,
                         [this](const QString& text) { said = text; });
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
    void openPrint(int tab, PrintPurpose purpose = PrintPurpose::printer) {
        period.setCurrentReadingTimePeriod(store.getReadingForCurID());
        printing->showPrintPreview(tab, {}, purpose);
        ASSERT_TRUE(printing->isVisible());
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

    DisplayPeriod period{std::chrono::floor<std::chrono::milliseconds>(clock.now())};
    ScriptedChooser chooser;
    ScriptedPrinters printers;
    PrintController* printing = nullptr; ///< the window owns it
    QString said;
};

} // namespace

TEST_F(PrintTest, theSectionsAreThoseOfTheTab) {
    using enum Section;
    storeReadings(3);
    struct Case {
        int tab;
        std::vector<Section> offered;
    };
    for (const Case& c : {Case{0, {summary, PatientProfile}},
                          {1, {summary, graph, histogram, correlation, trend, comment, SWStatistics}},
                          {2, {summary, table, comment, SWStatistics}}}) {
        openPrint(c.tab);
        const auto& list = find<QComboBox>("printOption");
        QStringList texts, offered;
        for (int i = 0; i < list.count(); ++i)
            texts += list.itemText(i);
        for (const Section section : c.offered)
            offered += facts(section).text();
        EXPECT_EQ(texts, offered);
        rollOver(find<QWidget>("printOption"));
        EXPECT_EQ(list.currentIndex(), 1) << "what is in view";
        click("cancelPrint");
        EXPECT_FALSE(printing->isVisible());
    }
    printing->showPrintPreview(1, {.drawViewState = 3}, PrintPurpose::printer);
    EXPECT_EQ(find<QComboBox>("printOption").currentText(), facts(trend).text()) << "as on the screen";
    EXPECT_TRUE(printOptions(3).empty());
    EXPECT_TRUE(printers.printed.empty());
}

TEST_F(PrintTest, theSummaryHasTheWeekThatIsChosenOnTheScreen) {
    storeReadings(3);
    period.setWeekRule(AverageRule::nice);
    period.setWeekEnd(20000);
    openPrint(2);
    choose(Section::summary);
    printers.whenPrinted = [](const PrintView& view) {
        EXPECT_EQ(view.report().weekRule, AverageRule::nice);
        EXPECT_EQ(view.report().weekEnd, 20000);
    };
    click("printAndClose");
    EXPECT_EQ(printers.printed.size(), 1U);
}

TEST_F(PrintTest, thePagesAreTurnedOneByOneWithinTheirLimits) {
    storeReadings(70);
    openPrint(2);
    ASSERT_EQ(text("pageText"), u"1/3"_s);
    waitFor([this] { return printing->isActiveWindow(); }); // for the keys
    EXPECT_FALSE(page("gotoPreviousPage").isEnabled());
    QTest::keyClick(printing, Qt::Key_PageUp);
    EXPECT_EQ(text("pageText"), u"1/3"_s);
    QImage before = preview();
    for (const QString& counter : {u"2/3"_s, u"3/3"_s}) {
        QTest::keyClick(printing, Qt::Key_PageDown);
        const QImage now = preview();
        EXPECT_EQ(text("pageText"), counter);
        EXPECT_NE(now, before);
        before = now;
    }
    EXPECT_FALSE(page("gotoNextPage").isEnabled());
    QTest::keyClick(printing, Qt::Key_PageDown);
    EXPECT_EQ(text("pageText"), u"3/3"_s);
    click("gotoPreviousPage");
    EXPECT_EQ(text("pageText"), u"2/3"_s);
    click("gotoNextPage");
    EXPECT_EQ(text("pageText"), u"3/3"_s);
    choose(Section::SWStatistics);
    EXPECT_EQ(text("pageText"), u"1/4"_s) << "another section begins at its first page";
}

TEST_F(PrintTest, anEmptySectionSaysWhatIsMissingAndIsNeitherPrintedNorSaved) {
    storeReadings(1);
    openPrint(2);
    const auto expectMissing = [this](const QString& what) {
        EXPECT_EQ(text("pageText"), qtTrId("noPage"));
        EXPECT_TRUE(page("noPage").isVisible());
        EXPECT_EQ(page("noPage").accessibleName(), what);
        for (const char* button : {"printAndClose", "savePdf", "gotoPreviousPage", "gotoNextPage"})
            EXPECT_FALSE(page(button).isEnabled()) << button;
        EXPECT_TRUE(page("printerSelection").isEnabled());
        QTest::keyClick(printing, Qt::Key_Return);
        QTest::keyClick(printing, Qt::Key_PageDown);
    };
    choose(Section::comment);
    expectMissing(qtTrId("noCommentPage"));
    choose(Section::table);
    EXPECT_FALSE(page("noPage").isVisible());
    EXPECT_TRUE(page("printAndClose").isEnabled() && page("savePdf").isEnabled());
    period.setTimePeriod(period.getTimePeriod().end + std::chrono::days(3),
                         period.getTimePeriod().end + std::chrono::days(4));
    expectMissing(qtTrId("noneInPeriod"));
    addPatient(u"P2"_s, u"Baker"_s);
    store.setCurrentID(u"P2"_s);
    expectMissing(qtTrId("NoData"));
    EXPECT_TRUE(printers.printed.empty());
    EXPECT_TRUE(chooser.asked.empty());
    EXPECT_TRUE(printing->isVisible());
}

TEST_F(PrintTest, thePractitionersDetailsAreShownAtOnce) {
    store.getSetting().physicianAddress = u"Dr. Grey\nHarbour Street 4"_s;
    openPrint(0);
    const QImage without = preview();
    click("printAddAddress");
    EXPECT_NE(preview(), without);
    click("printAddAddress");
    EXPECT_EQ(preview(), without);
    click("printAddAddress");
    ASSERT_TRUE(store.saveSetting());
    ASSERT_TRUE(store.loadXML());
    EXPECT_NE(preview(), without) << "read anew";
    click("cancelPrint");
    openPrint(0);
    EXPECT_NE(preview(), without) << "opened anew";
}

TEST_F(PrintTest, withoutAPrinterTheFileCanBeHad) {
    printers.known.clear();
    for (const PrintPurpose purpose : {PrintPurpose::pdf, PrintPurpose::printer}) {
        openPrint(0, purpose);
        EXPECT_EQ(text("lblNote"), qtTrId("noPrinterNote"));
        EXPECT_FALSE(page("printAndClose").isEnabled());
        QFile::remove(chooser.pdf);
        QTest::keyClick(printing, Qt::Key_Return);
        EXPECT_TRUE(pdf().startsWith("%PDF"));
    }
    click("printerSelection");
    EXPECT_EQ(panel.messages, QStringList(qtTrId("NoPrnter") + u": "_s + qtTrId("NoPrnterMsg")));
    printers.known = {u"New"_s}; // set up meanwhile
    click("printerSelection");
    click("printerOK");
    click("printAndClose");
    EXPECT_EQ(said, qtTrId("printDone").arg(u"New"_s));
}

TEST_F(PrintTest, cancelBecomesCloseOnceAFileIsSaved) {
    openPrint(0);
    const auto& cancel = find<QPushButton>("cancelPrint");
    const QString path = std::exchange(chooser.pdf, home.filePath(u"nowhere/report.pdf"_s));
    click("savePdf");
    EXPECT_EQ(cancel.text(), qtTrId("cancel")) << "nothing was saved";
    chooser.pdf = path;
    click("savePdf");
    EXPECT_EQ(cancel.text(), qtTrId("closeWindow"));
    EXPECT_EQ(cancel.accessibleName(), qtTrId("closeWindow"));
    QTest::keyClick(printing, Qt::Key_Escape);
    EXPECT_FALSE(printing->isVisible());
    openPrint(0);
    EXPECT_EQ(cancel.text(), qtTrId("cancel")) << "of this time's nothing is saved";
    EXPECT_EQ(cancel.accessibleName(), qtTrId("cancel"));
}

TEST_F(PrintTest, printsOnTheChosenPrinterAndSaysWhenItHasGone) {
    printers.usual = u"Ward"_s;
    openPrint(0);
    EXPECT_EQ(text("lblPrinter"), qtTrId("printerShown").arg(u"Ward"_s));
    printers.usual.clear();
    openPrint(0);
    click("printAndClose");
    EXPECT_FALSE(printing->isVisible());
    EXPECT_EQ(said, qtTrId("printDone").arg(u"Office"_s));
    const auto choosePrinter = [this](const QString& name, const char* button) {
        openPrint(0);
        click("printerSelection");
        find<QComboBox>("printerList").setCurrentText(name);
        click(button);
    };
    choosePrinter(u"Ward"_s, "printerCancel");
    click("printAndClose");
    printers.onLetter = u"Ward"_s;
    choosePrinter(u"Ward"_s, "printerOK");
    EXPECT_EQ(text("lblPrinter"), qtTrId("printerShown").arg(u"Ward"_s));
    click("savePdf");
    EXPECT_TRUE(pdf().contains("MediaBox [0 0 792.")) << "on that one's paper";
    click("printAndClose");
    EXPECT_EQ(printers.printed, (QStringList{u"Office: PatientProfile"_s, u"Office: PatientProfile"_s,
                                             u"Ward: PatientProfile"_s}));
    printers.fails = true;
    openPrint(0);
    click("printAndClose");
    EXPECT_EQ(panel.messages.takeFirst(), qtTrId("Warning") + u": "_s + qtTrId("printFailed").arg(u"Ward"_s));
    printers.fails = false;
    printers.known.removeLast();
    click("printAndClose");
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("Warning") + u": "_s + qtTrId("printerGone").arg(u"Ward"_s)));
    EXPECT_TRUE(printing->isVisible()) << "to choose another one";
    EXPECT_EQ(printers.printed.size(), 3);
}

TEST_F(PrintTest, aPdfIsWrittenWholeOrNotAtAll) {
    const QString good = chooser.pdf;
    openPrint(0);
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
    EXPECT_EQ(chooser.asked.last(), u"Adams, Kim - "_s + qtTrId("pdfProfile") + u" 2026-11-21.pdf"_s);
    EXPECT_TRUE(pdf().startsWith("%PDF"));
    EXPECT_EQ(text("lblNote"), qtTrId("savedPdf").arg(good));
    EXPECT_TRUE(printing->isVisible());
}

TEST_F(PrintTest, theWindowSurvivesThatItsRecordsAreReadAnew) {
    storeReadings(30);
    openPrint(2);
    const QImage before = preview();
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(preview(), before);
    EXPECT_EQ(text("pageText"), u"1/2"_s);
    period.setTimePeriod(period.getTimePeriod().begin, period.getTimePeriod().begin + std::chrono::days(3));
    EXPECT_EQ(text("pageText"), u"1/1"_s);
    store.setCurrentID({});
    EXPECT_FALSE(printing->isVisible()) << "nobody is selected";
    store.setCurrentID(u"P1"_s);
    openPrint(2);
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_FALSE(printing->isVisible()) << "nobody is left";
    printing->showPrintPreview(2, {}, PrintPurpose::pdf);
    EXPECT_EQ(panel.messages.last(), qtTrId("Warning") + u": "_s + qtTrId("printNoPatient"));
    EXPECT_FALSE(printing->isVisible());
}

TEST_F(PrintTest, paperShowsWhatTheScreenDoes) {
    storeReadings(3);
    ReadingModel pad = store.getReadingForCurID().front();
    pad.Arrhythmia = 2;
    *pad.ReadingDate += std::chrono::hours(48);
    ASSERT_TRUE(store.newDataTransfer({pad}));
    period.setCurrentReadingTimePeriod(store.getReadingForCurID());
    ScreenViews views{.getShowMam = false, .isMonitorAFib = true, .trendApart = true};
    views.lowerChart.iScaleBase = 33;
    ASSERT_TRUE(store.chooseViewLimits({LimitChoice::low, {}}));
    auto source = printSource(store, period, clock, views);
    ASSERT_TRUE(source);
    EXPECT_FALSE(source->getShowMam || !source->getShowPad);
    EXPECT_FALSE(source->getIsAfib) << "the readings are of another kind";
    EXPECT_EQ(source->lowerChart.iScaleBase, 33);
    EXPECT_TRUE(source->trendApart);
    EXPECT_EQ(source->highFrom, (LimitPair{130, 80}));
    const PrintView view(std::move(*source), QPageSize(QPageSize::A4));
    EXPECT_EQ(SystemPrinters().print(u"nowhere"_s, view, Section::table), PrintResult::noPrinter);
}

/// Has the value that it had, or none, at the end.
class OwnVariable {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a list of names is a list of these
    OwnVariable(const char* variable)
        : name(variable), value(qgetenv(variable)), isSet(qEnvironmentVariableIsSet(variable)) {}
    ~OwnVariable() { isSet ? void(qputenv(name, value)) : void(qunsetenv(name)); }
    OwnVariable(const OwnVariable&) = delete;
    OwnVariable& operator=(const OwnVariable&) = delete;

private:
    const char* name;
    QByteArray value;
    bool isSet;
};

TEST_F(PrintTest, paperFollowsTheLocaleOfThePaper) {
    using enum QPageSize::PageSizeId;
    for (const auto& [locale, paper] : {std::pair("en_US.UTF-8", Letter),
                                        {"fr_CA", Letter},
                                        {"es_MX.UTF-8@x", Letter},
                                        {"tl_PH", Letter},
                                        {"en_GB.UTF-8", A4},
                                        {"es_AR", A4},
                                        {"de_DE@euro", A4},
                                        {"C.UTF-8", A4},
                                        {"en", A4},
                                        {"", A4}})
        EXPECT_EQ(usualPaper(QLatin1StringView(locale)).id(), paper) << locale;
    const OwnVariable own[]{"LC_ALL", "LC_PAPER", "LANG"};
    for (const auto& [all, ofPaper, language, paper] : {std::tuple("", "", "en_US.UTF-8", Letter),
                                                        {"", "de_DE.UTF-8", "en_US.UTF-8", A4},
                                                        {"", "en_US.UTF-8", "de_DE.UTF-8", Letter},
                                                        {"de_DE.UTF-8", "en_US.UTF-8", "en_US.UTF-8", A4}}) {
        qputenv("LC_ALL", all);
        qputenv("LC_PAPER", ofPaper);
        qputenv("LANG", language);
        EXPECT_EQ(SystemPrinters().paper(u"nowhere"_s).id(), paper) << all << ofPaper << language;
    }
}

TEST_F(PrintTest, everyControlSaysWhatItIs) {
    openPrint(0);
    expectNamed(*printing);
}

} // namespace zel
