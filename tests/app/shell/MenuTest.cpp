#include "AppTest.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextBrowser>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The dialogs over the main window, and what they do to its pages.
class MenuTest : public AppTest {
protected:
    MenuTest() {
        startsPlugged = false;
        printers.known = {u"Office"_s};
    }
    /// One with a value of its own in every field.
    void typePatient() {
        click("btnNewPatient");
        for (const auto& [field, text] : {std::pair("FamilyName", u"O'Neil \"Jo\" & <Co>"_s),
                                          {"GivenNames", u"Zoë"_s},
                                          {"ID", u"R 1"_s},
                                          {"BirthYear", u"1956"_s},
                                          {"Weight", u"160.5"_s},
                                          {"Height", u"5'9\""_s},
                                          {"Address", u"Street 1\nTown"_s},
                                          {"PhoneEmail", u"+49 1 a@b"_s},
                                          {"Cholestrol", u"201,5"_s},
                                          {"FamilyHistory", u"none, \"really\""_s},
                                          {"PatientNotes", u"a\n\nb"_s}}) {
            QGuiApplication::clipboard()->setText(text); // also for what no key types here
            page(field).setFocus();
            press(Qt::Key_V, Qt::ControlModifier);
        }
        for (const char* list : {"Sex", "BirthMonth", "BirthDay", "Smoker", "Diabetic"})
            QTest::keyClick(&page(list), Qt::Key_Down);
        click("btnSavePatient");
        ASSERT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'|'));
    }
    /// The patients, readings and comments of the data file, each as it stands there; the patients last.
    QStringList records() const {
        const QRegularExpression record(u"\n    <(Patient|MeasureRec|Comment)>.*?\n    </\\1>"_s,
                                        QRegularExpression::DotMatchesEverythingOption);
        QStringList found;
        for (const auto& match : record.globalMatch(QString::fromUtf8(dataFile())))
            found += match.captured();
        found.sort();
        return found;
    }
};

} // namespace

TEST_F(MenuTest, eachTabPrintsWhatIsOnIt) {
    addPatient(u"P1"_s, u"Adams"_s);
    start();
    for (const auto& [tab, section] : {std::pair(Qt::Key_1, Section::PatientProfile),
                                       {Qt::Key_2, Section::graph},
                                       {Qt::Key_3, Section::table}}) {
        press(tab, Qt::ControlModifier);
        press(Qt::Key_P, Qt::ControlModifier);
        ASSERT_TRUE(page("PrintController").isVisible());
        EXPECT_EQ(find<QComboBox>("printOption").currentText(), facts(section).text());
        click("cancelPrint");
    }
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_P, Qt::ControlModifier);
    click("printAndClose");
    EXPECT_EQ(text("lblOutcome"), qtTrId("printDone").arg(u"Office"_s));
}

TEST_F(MenuTest, withoutAPrinterThePreviewOpensAllTheSame) {
    addPatient(u"P1"_s, u"Adams"_s);
    printers.known.clear();
    start();
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(page("PrintController").isVisible());
    EXPECT_TRUE(panel.messages.empty());
    click("savePdf");
    EXPECT_EQ(chooser.asked, QStringList(u"Adams, Kim - "_s + qtTrId("pdfProfile") + u" 2026-11-21.pdf"_s));
}

TEST_F(MenuTest, settingsActAtOnceOnThePages) {
    addPatient(u"P1"_s, u"Adams"_s);
    store.getSetting() = SettingModel::initWithDefault();
    ASSERT_TRUE(store.saveSetting());
    plan.records = readings(3);
    startsPlugged = true;
    startConnected();
    download();
    press(Qt::Key_3, Qt::ControlModifier);
    const QAbstractItemModel& table = *find<QAbstractItemView>("tblReadings").model();
    ASSERT_EQ(table.index(0, 0).data().toString(), u"01/03/2026"_s);
    const QString downloaded = text("lblLastDownload");
    QSignalSpy told(&table, &QAbstractItemModel::dataChanged);
    press(Qt::Key_Comma, Qt::ControlModifier);
    find<QComboBox>("dateFormate").setCurrentText(u"yyyy mm dd"_s);
    QTest::keyClick(&page("SettingController"), Qt::Key_Return);
    ASSERT_FALSE(page("SettingController").isVisible());
    EXPECT_EQ(table.index(0, 0).data().toString(), u"2026/03/01"_s);
    EXPECT_FALSE(told.isEmpty());
    EXPECT_NE(text("lblLastDownload"), downloaded);
}

TEST_F(MenuTest, aPatientTypedInExportedAndDeletedComesBackEqual) {
    start();
    typePatient();
    ReadingList taken(3);
    for (std::uint32_t i = 0; i < taken.size(); ++i) {
        taken[i].sys = 121 + i;
        taken[i].ReadingDate = StrToDate(u"202603011234"_s, u"yyyyMMddHHmm"_s);
    }
    ASSERT_EQ(store.newDataTransfer(taken).value_or(TransferCounts{0}).added, 3U);
    for (const auto& words : {u"<\"one\">"_s, u"two\nlines &c"_s}) {
        CommentModel comment;
        comment.beginDate = comment.endDate = taken[0].ReadingDate;
        comment.CommentID = QString::number(10001 + records().size());
        comment.comment = words;
        ASSERT_TRUE(store.addCommentForCurID(comment));
    }
    const QStringList before = records();
    ASSERT_EQ(before.size(), 1 + 3 + 2);
    EXPECT_FALSE(before.last().contains(QRegularExpression(u"/>|></|>0"_s))) << "every field was typed in";

    const QTemporaryDir outside;
    chooser.folder = outside.path();
    click("settingBtn");
    click("exportButton");
    click("cancelButton");
    click("btnDeletePatient");
    ASSERT_TRUE(records().isEmpty());
    chooser.files = {outside.filePath(u"R 1.xml"_s)};
    click("settingBtn");
    click("importButton");
    EXPECT_EQ(records().join(u'|').toStdString(), before.join(u'|').toStdString());
    EXPECT_EQ(find<QAbstractItemView>("tblPatients").model()->rowCount(), 1) << "the roster has read it";
}

TEST_F(MenuTest, aPatientGoesOutAsABundleWithWhatIsTypedAndByTheRuleChosen) {
    addPatient(u"P1"_s, u"Adams"_s);
    start();
    ReadingList taken(1);
    taken[0].sys = 121;
    taken[0].dia = 81;
    taken[0].ReadingDate = StrToDate(u"202603011234"_s, u"yyyyMMddHHmm"_s);
    ASSERT_TRUE(store.newDataTransfer(taken));
    period.setWeekRule(AverageRule::aha);
    type("FamilyName", u"Brown"_s);
    const QTemporaryDir outside;
    chooser.folder = outside.path();
    window().findChild<QAction*>(u"exportFhir"_s)->trigger();
    QFile file(outside.filePath(u"P1.fhir.json"_s));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray written = file.readAll();
    EXPECT_TRUE(written.contains("\"Brown\"") && written.contains("rule AHA")) << written.toStdString();
}

TEST_F(MenuTest, backupsAreMadeAndGoneBackTo) {
    addPatient(u"P1"_s, u"Adams"_s);
    start();
    const auto openBackups = [this] { window().findChild<QAction*>(u"showBackups"_s)->trigger(); };
    type("PatientNotes", u"before"_s);
    openBackups();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("SavePatient"))) << "what is typed is settled first";
    auto& list = find<QAbstractItemView>("tblBackups");
    const auto copies = [&list] { return list.model()->rowCount(); };
    const int daily = copies();
    click("btnCreateBackup");
    EXPECT_EQ(copies(), daily + 1);
    EXPECT_TRUE(text("lblBackup").contains(qtTrId("BackupPatients", 1)));
    const QByteArray whole = dataFile();
    click("btnCloseBackups");
    type("PatientNotes", u"after"_s);
    click("btnSavePatient");
    const QByteArray changed = dataFile();
    openBackups();
    panel.answers[qtTrId("backupTitle")] = false;
    click("btnRestoreBackup");
    EXPECT_EQ(dataFile(), changed);
    panel.answers[qtTrId("backupTitle")] = true;
    click("btnRestoreBackup");
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(dataFile(), whole);
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"before"_s);
    EXPECT_TRUE(text("lblOutcome").contains(u"-replaced.xml"_s));
    openBackups();
    EXPECT_EQ(copies(), daily + 2);
    replaceDataFile("<ZEL>");
    QDir(store.backups().folder()).removeRecursively();
    click("btnRestoreBackup");
    EXPECT_EQ(panel.messages.size(), 1) << "the copy has gone meanwhile";
    EXPECT_EQ(dataFile(), "<ZEL>");
}

TEST_F(MenuTest, helpOpensTheManual) {
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.path()));
    start();
    press(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened.first().startsWith(home.path()));
    QFile manual(opened.first());
    ASSERT_TRUE(manual.open(QFile::ReadOnly));
    EXPECT_TRUE(manual.readAll().startsWith("%PDF"));
    EXPECT_TRUE(panel.messages.empty());
    EXPECT_FALSE(window().findChild<QWidget*>(u"HelpWindow"_s));
    const QString blocked = home.filePath(u"file"_s);
    QFile(blocked).open(QFile::WriteOnly);
    EXPECT_TRUE(unpackHelp(u":/help.pdf"_s, blocked).isEmpty());
    EXPECT_TRUE(unpackHelp(u":/none.pdf"_s, home.path()).isEmpty());
}

TEST_F(MenuTest, withoutAViewerTheManualHasAWindowOfItsOwn) {
    hasViewer = false;
    start();
    press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(panel.messages.empty());
    auto& help = find<QDialog>("HelpWindow");
    ASSERT_TRUE(help.isVisible());
    EXPECT_FALSE(help.isModal()) << "it is read beside the program";
    expectNamed(help);
    auto& chapters = find<QListWidget>("chapters");
    auto& manual = find<QTextBrowser>("manual");
    ASSERT_GT(chapters.count(), 5);
    for (int row = 0; row < chapters.count() - 2; ++row) { // the last ones have too little below them
        chapters.setCurrentRow(row);
        const QTextCursor top = manual.cursorForPosition({20, 8});
        EXPECT_EQ(top.block().text(), chapters.item(row)->text());
    }
    const QUrl picture(u"screenshots/print.png"_s);
    const auto shown = manual.document()->resource(QTextDocument::ImageResource, picture).value<QImage>();
    EXPECT_GT(shown.height(), 100);
    EXPECT_LE(shown.width() / shown.devicePixelRatio(), manual.viewport()->width());
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
    press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(help.isVisible());
}

TEST_F(MenuTest, eachPictureOfTheManualsIsCarriedInside) {
    const QStringList manuals = QDir(u":/manual"_s).entryList({u"manual*.md"_s});
    ASSERT_GE(manuals.size(), 2);
    const QRegularExpression link(uR"(!\[[^\]]*\]\(([^)]+)\))"_s);
    for (const QString& name : manuals) {
        QFile manual(u":/manual/"_s + name);
        ASSERT_TRUE(manual.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(manual.readAll());
        auto pictures = link.globalMatch(text);
        EXPECT_TRUE(pictures.hasNext()) << name.toStdString();
        while (pictures.hasNext()) {
            const QString path = pictures.next().captured(1);
            EXPECT_FALSE(QImage(u":/manual/"_s + path).isNull()) << path.toStdString();
        }
    }
}

TEST_F(MenuTest, theDesktopIsAskedWhetherItShowsPdfFiles) {
    const QByteArray before = qgetenv("PATH");
    const auto withTool = [&](const QByteArray& script) {
        QFile tool(home.filePath(u"xdg-mime"_s));
        EXPECT_TRUE(tool.open(QFile::WriteOnly));
        tool.write("#!/bin/sh\n" + script);
        tool.close();
        tool.setPermissions(tool.permissions() | QFile::ExeOwner);
        return hasPdfViewer();
    };
    qputenv("PATH", QFile::encodeName(home.path()));
    EXPECT_TRUE(hasPdfViewer()) << "nobody to be asked";
    EXPECT_FALSE(withTool("[ \"$*\" = 'query default application/pdf' ] && echo"));
    EXPECT_TRUE(withTool("[ \"$*\" = 'query default application/pdf' ] && echo viewer.desktop"));
    qputenv("PATH", before);
}

TEST_F(MenuTest, aboutSaysVersionLicenceAndWhereTheDataLie) {
    start();
    window().findChild<QAction*>(u"showAbout"_s)->trigger();
    ASSERT_EQ(panel.messages.size(), 1);
    for (const QString& part : {QString(QLatin1String(ZEL_VERSION)), store.getZELXMLPath(),
                                u"Licence: MIT. ZEL comes without any warranty."_s})
        EXPECT_TRUE(panel.messages.first().contains(part)) << qPrintable(part);
}

} // namespace zel
