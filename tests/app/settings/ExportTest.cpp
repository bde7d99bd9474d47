#include "SettingDialogTest.h"
#include "app/settings/ExportController.h"
#include "app/settings/ImportController.h"

#include <QDir>
#include <QProgressBar>
#include <QSignalSpy>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Export and import from the settings dialog, with a folder of their own.
class ExportTest : public SettingDialogTest {
protected:
    ExportTest() { chooser.folder = outside.path(); }
    void addPatients(int total) {
        for (int i = 1; i <= total; ++i)
            addPatient(u"P%1"_s.arg(i, 3, 10, QChar(u'0')), u"Adams"_s);
    }
    /// In the export's own progress window; the import has one, too.
    template <class W>
    W& exportWindow(const char* name) {
        return *find<QWidget>("exportProgress").findChild<W*>(QLatin1String(name));
    }
    QString path(const QString& name) const { return outside.filePath(name); }
    void put(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    QStringList files() const { return QDir(outside.path()).entryList(QDir::Files, QDir::Name); }
    static QByteArray patientFile(const QByteArray& ID) {
        return "<ZEL><Patient><ID>" + ID + "</ID><FamilyName>Import</FamilyName></Patient></ZEL>";
    }
    QString message() {
        if (panel.messages.size() != 1) return u"%1 messages"_s.arg(panel.messages.size());
        return panel.messages.takeFirst();
    }

    QTemporaryDir outside;
};

} // namespace

TEST_F(ExportTest, writesAFileForEachPatientAndSaysWhere) {
    addPatients(3);
    open();
    click("exportButton");
    EXPECT_EQ(files(), (QStringList{u"P001.xml"_s, u"P002.xml"_s, u"P003.xml"_s}));
    EXPECT_TRUE(content(u"P002.xml"_s).contains("<ID>P002</ID>"));
    EXPECT_EQ(message(), qtTrId("ExportTitle") + u": "_s + qtTrId("ExportMsg", 3).arg(outside.path()));
    EXPECT_TRUE(panel.questions.empty());
}

TEST_F(ExportTest, withoutAPatientOrAFolderDoesNothing) {
    open();
    click("exportButton");
    EXPECT_EQ(message(), qtTrId("ExportTitle") + u": "_s + qtTrId("exportNobody"));
    EXPECT_TRUE(chooser.asked.isEmpty());
    addPatients(1);
    store.setCurrentID(u"P001"_s);
    chooser.folder.clear();
    click("exportButton");
    click("csvButton");
    EXPECT_EQ(chooser.asked.size(), 2);
    EXPECT_TRUE(panel.messages.empty());
}

TEST_F(ExportTest, asksOnceBeforeFilesAreReplaced) {
    addPatients(3);
    open();
    for (const bool replace : {false, true}) {
        put(u"P001.xml"_s, "old");
        put(u"P003.xml"_s, "old");
        QFile::remove(path(u"P002.xml"_s));
        panel.questions.clear();
        panel.answers[qtTrId("exportReplaceTitle")] = replace;
        click("exportButton");
        EXPECT_EQ(panel.questions, QStringList(qtTrId("exportReplaceTitle")));
        EXPECT_EQ(content(u"P001.xml"_s) == "old", !replace);
        EXPECT_EQ(content(u"P003.xml"_s) == "old", !replace);
        EXPECT_TRUE(content(u"P002.xml"_s).contains("P002"));
        const QString told = message();
        EXPECT_TRUE(told.contains(qtTrId("ExportMsg", replace ? 3 : 1).arg(outside.path())))
            << qPrintable(told);
        EXPECT_EQ(told.contains(qtTrId("exportKept", 2)), !replace);
    }
    QFile::remove(path(u"P002.xml"_s));
    panel.whenAsked = [this] { put(u"P002.xml"_s, "newer"); };
    click("exportButton");
    EXPECT_EQ(content(u"P002.xml"_s), "newer") << "nobody was asked about it";
    EXPECT_TRUE(message().contains(qtTrId("ExportMsg", 2).arg(outside.path())));
}

TEST_F(ExportTest, namesEachFileThatFailedAndWritesTheOthers) {
    addPatients(4);
    QDir(outside.path()).mkpath(u"P002.xml/in-the-way"_s);
    QDir(outside.path()).mkpath(u"P003.xml/in-the-way"_s);
    open();
    click("exportButton");
    EXPECT_EQ(files(), (QStringList{u"P001.xml"_s, u"P004.xml"_s}));
    const QString told = message();
    EXPECT_TRUE(told.contains(qtTrId("ExportMsg", 2).arg(outside.path()))) << qPrintable(told);
    EXPECT_TRUE(told.contains(u"P002.xml"_s) && told.contains(u"P003.xml"_s)) << qPrintable(told);
}

TEST_F(ExportTest, ofManyPatientsCanBeCancelled) {
    addPatients(21);
    open();
    const auto atFive = QObject::connect(
        &exportWindow<QProgressBar>("barStep"), &QProgressBar::valueChanged, &dialog(), [this](int done) {
            if (done == 5) QTest::mouseClick(&exportWindow<QWidget>("btnCancelSteps"), Qt::LeftButton);
        });
    click("exportButton");
    ASSERT_TRUE(exportWindow<QWidget>("barStep").isVisible());
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_FALSE(exportWindow<QWidget>("barStep").isVisible());
    EXPECT_EQ(files().size(), 5);
    const QString told = message();
    EXPECT_TRUE(told.contains(qtTrId("ExportMsg", 5).arg(outside.path()))) << qPrintable(told);
    EXPECT_TRUE(told.contains(qtTrId("exportCancelled")));

    QObject::disconnect(atFive);
    click("exportButton");
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(files().size(), 21);
    EXPECT_FALSE(message().contains(qtTrId("exportCancelled")));
}

TEST_F(ExportTest, ofACSVFileNeedsAPatient) {
    open();
    EXPECT_FALSE(page("csvButton").isEnabled());
    addPatients(2);
    store.setCurrentID(u"P002"_s);
    ASSERT_TRUE(page("csvButton").isEnabled());
    store.setCurrentID(u"gone"_s);
    EXPECT_FALSE(page("csvButton").isEnabled());
    store.setCurrentID(u"P002"_s);
    click("csvButton");
    EXPECT_EQ(files(), QStringList(u"P002.csv"_s));
    EXPECT_TRUE(content(u"P002.csv"_s).contains("date,time,sys(mmHg)"));
    EXPECT_EQ(message(), qtTrId("ExportTitle") + u": "_s + qtTrId("ExportMsg", 1).arg(outside.path()));
}

TEST_F(ExportTest, ofABundleIsOfTheChosenPatientAndAsksBeforeItReplaces) {
    attach();
    show(new QWidget);
    bool isReady = true;
    ExportController exporter({store, panel, chooser, [&isReady] { return isReady; }}, host.get());
    addPatients(2);
    exporter.exportFhir(AverageRule::esh);
    EXPECT_EQ(message(), qtTrId("ExportTitle") + u": "_s + qtTrId("exportNoPatient"));
    store.setCurrentID(u"P002"_s);
    isReady = false;
    exporter.exportFhir(AverageRule::esh);
    EXPECT_TRUE(chooser.asked.isEmpty() && panel.messages.empty()) << "what is typed is settled first";
    isReady = true;
    exporter.exportFhir(AverageRule::esh);
    EXPECT_EQ(files(), QStringList(u"P002.fhir.json"_s));
    EXPECT_TRUE(content(u"P002.fhir.json"_s).contains("P002"));
    EXPECT_FALSE(content(u"P002.fhir.json"_s).contains("P001"));
    EXPECT_EQ(message(), qtTrId("ExportTitle") + u": "_s + qtTrId("ExportMsg", 1).arg(outside.path()));
    put(u"P002.fhir.json"_s, "old");
    panel.answers[qtTrId("exportReplaceTitle")] = false;
    exporter.exportFhir(AverageRule::esh);
    EXPECT_EQ(content(u"P002.fhir.json"_s), "old");
    EXPECT_EQ(panel.questions, QStringList(qtTrId("exportReplaceTitle")));
}

TEST_F(ExportTest, filesOfADemonstrationSaySoAndAreLookedForBeforeTheyAreReplaced) {
    attach();
    show(new QWidget);
    addPatients(1);
    DataStore invented({home.path(), {}, {}, true}, clock);
    ASSERT_TRUE(invented.loadXML());
    invented.setCurrentID(u"P001"_s);
    ExportController exporter({invented, panel, chooser}, host.get());
    const QStringList names{u"Demonstration-P001.csv"_s, u"Demonstration-P001.fhir.json"_s,
                            u"Demonstration-P001.xml"_s};
    for (const QString& name : names)
        put(name, "old");
    panel.answers[qtTrId("exportReplaceTitle")] = true;
    exporter.exportFiles();
    exporter.exportCSV();
    exporter.exportFhir(AverageRule::esh);
    EXPECT_EQ(panel.questions.size(), 3);
    EXPECT_EQ(files(), names);
    for (const QString& name : names)
        EXPECT_TRUE(content(name).contains("P001")) << qPrintable(name);
}

TEST_F(ExportTest, importTellsOfEachFileAndReloadsOnce) {
    addPatients(1);
    put(u"known.xml"_s, patientFile("P001"));
    put(u"new.xml"_s, patientFile("N1"));
    put(u"broken.xml"_s, "<ZEL><Patient>");
    chooser.files = {path(u"known.xml"_s), path(u"new.xml"_s), path(u"broken.xml"_s)};
    open();
    const QSignalSpy reloaded(&store, &DataStore::reloaded);
    click("importButton");
    EXPECT_EQ(reloaded.size(), 1);
    EXPECT_TRUE(store.getPatientByID(u"N1"_s));
    EXPECT_EQ(store.getPatientArray().size(), 2U);
    const QString told = message();
    EXPECT_TRUE(told.contains(qtTrId("importedFiles", 1) + u"\nnew.xml"_s)) << qPrintable(told);
    EXPECT_TRUE(told.contains(qtTrId("importRefused", 2))) << qPrintable(told);
    EXPECT_TRUE(told.contains(u"known.xml"_s) && told.contains(u"broken.xml"_s)) << qPrintable(told);
}

TEST_F(ExportTest, aCancelledImportTellsWhatItTookAndWhatItLeft) {
    for (int number = 1; number <= 6; ++number) {
        const QString name = u"N%1.xml"_s.arg(number);
        put(name, patientFile("N" + QByteArray::number(number)));
        chooser.files += path(name);
    }
    open();
    auto& window = find<QWidget>("importProgress");
    QObject::connect(
        window.findChild<QProgressBar*>(), &QProgressBar::valueChanged, &dialog(), [&](int done) {
            if (done == 2) QTest::mouseClick(window.findChild<QWidget*>(u"btnCancelSteps"_s), Qt::LeftButton);
        });
    click("importButton");
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_TRUE(message().contains(qtTrId("importCancelled", 4)));
    EXPECT_EQ(store.getPatientArray().size(), 2U);
    const QString told = describe(ImportOutcome{.taken = {{u"a.xml"_s, {1, 2, 3}}}});
    EXPECT_TRUE(told.contains(qtTrId("readingCount", 2)) && told.contains(qtTrId("commentCount", 3)))
        << qPrintable(told);
}

TEST_F(ExportTest, importOfNothingReloadsNothing) {
    addPatients(1);
    put(u"known.xml"_s, patientFile("P001"));
    open();
    const QByteArray before = dataFile();
    const QSignalSpy reloaded(&store, &DataStore::reloaded);
    click("importButton");
    EXPECT_TRUE(panel.messages.empty()) << "no file was chosen";
    chooser.files = {path(u"known.xml"_s)};
    click("importButton");
    EXPECT_TRUE(message().contains(qtTrId("importNone")));
    EXPECT_TRUE(reloaded.isEmpty());
    EXPECT_EQ(dataFile(), before);
}

} // namespace zel
