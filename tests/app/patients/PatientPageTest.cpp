#include "app/patients/DataPanel.h"
#include "app/patients/PatientViewController.h"
#include "support/DamageAfterWrite.h"
#include "support/MonitorTest.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PatientPageTest : public MonitorTest {
protected:
    PatientPageTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        store.getSetting().metricFormat = u"kg / cm"_s;
        EXPECT_TRUE(store.saveSetting());
        startsPlugged = false;
    }
    void start() {
        attach();
        auto* made = new PatientViewController({store, status, *worker, panel, clock});
        QObject::connect(made, &PatientViewController::said, made,
                         [this](const QString& text) { said = text; });
        QObject::connect(made, &PatientViewController::rosterChanged, made,
                         [this](bool isAnyone) { hasPatients = isAnyone; });
        show(made);
        made->LoadData();
        made->setFocus();
    }
    PatientViewController& patients() { return find<PatientViewController>("PatientViewController"); }
    QTableView& table() { return find<QTableView>("tblPatients"); }
    int rows() { return table().model()->rowCount(); }
    QString rowID(int row) { return table().model()->index(row, 1).data().toString(); }
    void clickRow(int row) {
        const QPoint middle = table().visualRect(table().model()->index(row, 0)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle);
        QCoreApplication::processEvents(); // what is asked comes after the click
    }
    void paste(const char* field, const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        find<QLineEdit>(field).setFocus();
        press(Qt::Key_V, Qt::ControlModifier);
    }
    void choose(const char* list, int position) {
        auto& choices = find<QComboBox>(list);
        choices.setFocus();
        QTest::keyClick(&choices, Qt::Key_Home);
        for (int i = 0; i < position; ++i)
            QTest::keyClick(&choices, Qt::Key_Down);
    }
    QString value(const char* field) { return find<QLineEdit>(field).text(); }
    /// As it is spoken: behind what is said of every required field.
    QString problemAt(const char* field) {
        QString told = find<QWidget>(field).accessibleDescription();
        if (isRequired(field)) told.remove(0, qtTrId("fieldRequired").size());
        if (told.startsWith(u". "_s)) told.remove(0, 2);
        EXPECT_EQ(find<QLabel>((QByteArray(field) + "Problem").constData()).isVisible(), !told.isEmpty());
        return told;
    }
    bool isRequired(const char* field) {
        return find<QWidget>(field).accessibleDescription().startsWith(qtTrId("fieldRequired"));
    }
    QString titleOf(const char* field) {
        for (const auto* label : page("patientEditor").findChildren<QLabel*>())
            if (label->buddy() == &page(field)) return label->text();
        return {};
    }
    void beginNew(const QString& ID, const QString& familyName) {
        press(Qt::Key_N, Qt::ControlModifier);
        type("ID", ID);
        type("FamilyName", familyName);
        type("GivenNames", u"Lou"_s);
    }
    void save() { patients().btnSavePatient(); }
    const PatientModel& patient(const QString& ID) { return *store.getPatientByID(ID); }

    QString said;
    bool hasPatients = true;
};

} // namespace

TEST_F(PatientPageTest, marksWhatHasToBeFilledInAndExplainsTheMarkOnce) {
    start();
    click("btnNewPatient");
    for (const char* field : {"FamilyName", "GivenNames", "ID", "Weight", "PatientNotes", "Cholestrol"}) {
        const bool isNeeded =
            QStringList{u"FamilyName"_s, u"GivenNames"_s, u"ID"_s}.contains(QLatin1String(field));
        EXPECT_EQ(titleOf(field).endsWith(u'*'), isNeeded) << field;
        EXPECT_EQ(isRequired(field), isNeeded) << field;
        EXPECT_FALSE(find<QWidget>(field).accessibleName().contains(u'*')) << "a name is spoken";
    }
    EXPECT_TRUE(page("requiredNote").isVisible());
}

TEST_F(PatientPageTest, theNumberOfReadingsSaysHowManyAreLeftOut) {
    for (const char* time : {"08:00", "20:00"})
        ASSERT_TRUE(
            store.addReading(u"P1"_s, {typedTime(u"2026-01-02"_s, QLatin1StringView(time)), 140, 90, 60}));
    store.setCurrentID(u"P1"_s);
    show(new DataPanel(store, nullptr));
    EXPECT_EQ(text("lblReadings"), u"2"_s);
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID().front()}, u"loose cuff"_s));
    EXPECT_EQ(text("lblReadings"), u"2, 1 of them left out"_s);
}

TEST_F(PatientPageTest, aNewPatientIsTypedInAndSaved) {
    start();
    click("btnNewPatient");
    EXPECT_EQ(rowID(0), u"-"_s);
    EXPECT_EQ(table().model()->index(0, 0).data().toString(), qtTrId("NewPatient"));
    EXPECT_EQ(store.getCurrentID(), u"-"_s);
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("FamilyName"));
    QTest::keyClicks(QApplication::focusWidget(), u"Clark"_s);
    press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"Jo"_s);
    press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u" P3 "_s);
    choose("Sex", 1);
    choose("BirthMonth", 11);
    choose("BirthDay", 22);
    type("BirthYear", u"2026"_s);
    EXPECT_EQ(text("lblAge"), u""_s) << "not born yet";
    type("BirthYear", u"1956"_s);
    EXPECT_EQ(text("lblAge"), u"Age 69"_s) << "the birthday is tomorrow";
    type("Weight", u"72,5"_s);
    type("Height", u"175"_s);
    choose("Smoker", 1);
    type("Cholestrol", u"201"_s);
    type("PatientNotes", u"first"_s);
    click("btnSavePatient");
    EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'|'));
    ASSERT_TRUE(store.validIDinXML(u"P3"_s));
    EXPECT_EQ(store.getCurrentID(), u"P3"_s);
    EXPECT_EQ(table().currentIndex().row(), 2);
    EXPECT_EQ(rows(), 3);
    const PatientModel& saved = patient(u"P3"_s);
    EXPECT_EQ(saved.DisplayName, u"Clark,Jo"_s);
    EXPECT_EQ(saved.DateOfBirth, StrToDate(u"19561122"_s, u"yyyyMMdd"_s));
    EXPECT_EQ(std::tuple(saved.Sex, saved.Smoker, saved.Diabetic), std::tuple(1, 1, 0));
    EXPECT_EQ(std::tuple(saved.Weight, saved.Height, saved.Cholestrol), std::tuple(72.5F, 175.0F, 201.0F));
    EXPECT_EQ(saved.PatientNotes, u"first"_s);
    EXPECT_TRUE(find<QLineEdit>("ID").isReadOnly());
    EXPECT_EQ(said, qtTrId("patientSaved").arg(u"Jo Clark"_s));
}

TEST_F(PatientPageTest, whatIsMissingOrTakenIsNotSaved) {
    start();
    click("btnNewPatient");
    save();
    EXPECT_EQ(panel.messages.takeFirst(), qtTrId("Warning") + u": "_s + qtTrId("patientsInputFields"));
    for (const char* field : {"FamilyName", "GivenNames", "ID"})
        EXPECT_EQ(problemAt(field), qtTrId("fieldMissing"));
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("FamilyName"));
    type("FamilyName", u"Clark"_s);
    type("GivenNames", u"Jo"_s);
    type("ID", u"P1"_s);
    type("Weight", u"-3"_s);
    EXPECT_EQ(problemAt("FamilyName"), u""_s);
    save();
    EXPECT_EQ(panel.messages.takeFirst(), qtTrId("sameIDTitle") + u": "_s + qtTrId("sameID").arg(u"P1"_s));
    EXPECT_EQ(problemAt("ID"), qtTrId("sameID").arg(u"P1"_s));
    panel.answers[qtTrId("SavePatient")] = false;
    clickRow(1);
    EXPECT_EQ(value("ID") + problemAt("ID"), u"P1"_s) << "nothing is wrong with the one who has it";
    clickRow(0);
    EXPECT_EQ(value("FamilyName"), u"Clark"_s);
    EXPECT_EQ(patient(u"P1"_s).FamilyName, u"Adams"_s);
    type("ID", u"P3"_s);
    type("Weight", {});
    save();
    EXPECT_TRUE(store.validIDinXML(u"P3"_s));
}

TEST_F(PatientPageTest, aRefusedEntrySaysSoAtItsFieldWhenItIsLeft) {
    start();
    type("Weight", u"-3"_s);
    EXPECT_EQ(problemAt("Weight"), u""_s) << "not while it is being typed";
    press(Qt::Key_Tab);
    const QString words = qtTrId("weightRefusedKg");
    EXPECT_EQ(problemAt("Weight"), words);
    save();
    EXPECT_EQ(panel.messages.takeFirst(), qtTrId("Warning") + u": "_s + qtTrId("patientRefused").arg(words));
    EXPECT_EQ(value("Weight"), u"-3"_s);
    EXPECT_EQ(QApplication::focusWidget(), &find<QWidget>("Weight"));
    type("Weight", u"73"_s);
    EXPECT_EQ(problemAt("Weight"), u""_s);
    type("BirthYear", u"1970"_s);
    choose("BirthMonth", 2);
    EXPECT_EQ(problemAt("BirthYear"), u""_s) << "year, month and day are left together";
    choose("BirthDay", 30);
    press(Qt::Key_Tab);
    EXPECT_EQ(problemAt("BirthYear"), qtTrId("birthDayRefused").arg(30));
    choose("BirthDay", 28);
    EXPECT_EQ(problemAt("BirthYear"), u""_s);
    save();
    EXPECT_EQ(patient(u"P1"_s).DateOfBirth, StrToDate(u"19700228"_s, u"yyyyMMdd"_s));
}

TEST_F(PatientPageTest, whatIsPastedIsKeptButLineBreaksInANameAreBlanks) {
    start();
    find<QPlainTextEdit>("PatientNotes").insertPlainText(u"a\u00A0b"_s);
    find<QLineEdit>("FamilyName").selectAll();
    paste("FamilyName", u"van\nder\r\nBerg"_s);
    save();
    EXPECT_EQ(patient(u"P1"_s).FamilyName, u"van der Berg"_s);
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"a\u00A0b"_s);
}

TEST_F(PatientPageTest, leavingAChangedPatientAsks) {
    start();
    clickRow(1);
    EXPECT_TRUE(panel.questions.empty());
    type("PatientNotes", u"mine"_s);
    auto& sex = find<QComboBox>("Sex");
    rollOver(sex);
    EXPECT_EQ(sex.currentIndex(), 0) << "the wheel only passed";
    panel.answers[qtTrId("SavePatient")] = false;
    clickRow(0);
    EXPECT_EQ(panel.questions, QStringList(qtTrId("SavePatient")));
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
    EXPECT_EQ(patient(u"P2"_s).PatientNotes, u""_s);
    type("PatientNotes", u"kept"_s);
    panel.answers[qtTrId("SavePatient")] = true;
    clickRow(1);
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"kept"_s);
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    EXPECT_EQ(table().currentIndex().row(), 1);
    EXPECT_EQ(value("FamilyName"), u"Baker"_s);
}

TEST_F(PatientPageTest, saveIsGreyWhileThereIsNothingToSave) {
    start();
    auto& saving = find<QPushButton>("btnSavePatient");
    EXPECT_FALSE(saving.isEnabled());
    type("PatientNotes", u"mine"_s);
    EXPECT_TRUE(saving.isEnabled());
    type("PatientNotes", {});
    EXPECT_FALSE(saving.isEnabled()) << "as it was";
    choose("Smoker", 1);
    EXPECT_TRUE(saving.isEnabled());
    panel.cancelsSaving = true;
    clickRow(1);
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
    EXPECT_TRUE(saving.isEnabled()) << "cancelled: all is as before";
    saving.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(patient(u"P1"_s).Smoker, 1);
    EXPECT_FALSE(saving.isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &table()) << "a second press does something else by no means";
    type("Weight", u"-3"_s);
    EXPECT_TRUE(saving.isEnabled()) << "what is wrong is told, not hidden";
    panel.cancelsSaving = false;
    panel.answers[qtTrId("SavePatient")] = false;
    click("btnNewPatient");
    EXPECT_FALSE(saving.isEnabled());
    type("GivenNames", u"Lou"_s);
    EXPECT_TRUE(saving.isEnabled());
    clickRow(1);
    EXPECT_FALSE(saving.isEnabled());
    clickRow(0);
    EXPECT_TRUE(saving.isEnabled()) << "what was typed for the new one";
}

TEST_F(PatientPageTest, aRefusedSaveKeepsThePatientInView) {
    start();
    type("FamilyName", u"-"_s);
    const auto stays = [this] {
        EXPECT_EQ(panel.messages.size(), 1);
        panel.messages.clear();
        EXPECT_EQ(store.getCurrentID(), u"P1"_s);
        EXPECT_EQ(value("FamilyName"), u"-"_s);
    };
    clickRow(1);
    stays();
    EXPECT_EQ(table().currentIndex().row(), 0);
    EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 0);
    click("btnNewPatient");
    stays();
    EXPECT_FALSE(patients().leave());
    stays();
    EXPECT_FALSE(patients().settle());
    stays();
    status.update([](MonitorState& state) { state.isConnected = true, state.IDOnDevice = u"P1"_s; });
    const QSignalSpy transfers(&patients(), &PatientViewController::dataTransferWanted);
    click("btnDataTransfer");
    stays();
    EXPECT_TRUE(transfers.empty());
    panel.answers[qtTrId("SavePatient")] = false;
    EXPECT_TRUE(patients().settle());
    EXPECT_EQ(value("FamilyName"), u"Adams"_s) << "given up";
}

TEST_F(PatientPageTest, aWriteErrorIsToldAndLosesNothing) {
    start();
    const QByteArray before = dataFile();
    type("PatientNotes", u"mine"_s);
    replaceDataFile("<ZEL><Patient>");
    save();
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().startsWith(qtTrId("Warning") + u": "_s));
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"mine"_s);
    replaceDataFile(before);
    save();
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"mine"_s);
    panel.messages.clear();
    type("PatientNotes", u"more"_s);
    const DamageAfterWrite damage(store.getZELXMLPath());
    save();
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("storedNotReadBack").section(u'%', 0, 0)));
}

TEST_F(PatientPageTest, noNewPatientIsBegunForAFileThatTakesNone) {
    start();
    QFile::rename(store.getZELXMLPath(), home.filePath(u"away.xml"_s));
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": "_s + qtTrId("XmlNotWritable")));
    EXPECT_EQ(rows(), 2);
    QFile::rename(home.filePath(u"away.xml"_s), store.getZELXMLPath());
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(rows(), 3);
}

TEST_F(PatientPageTest, thereIsOneUnsavedNewPatientWhoIsKeptUntilSavedOrDeleted) {
    start();
    beginNew(u"P3"_s, u"Clark"_s);
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(panel.messages.takeFirst(), qtTrId("Warning") + u": "_s + qtTrId("DupNewPatient"));
    EXPECT_EQ(rows(), 3);
    panel.answers[qtTrId("SavePatient")] = false;
    clickRow(1);
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
    ASSERT_TRUE(store.loadXML());
    clickRow(0);
    EXPECT_EQ(value("FamilyName"), u"Clark"_s) << "what was typed can be gone on with";
    panel.questions.clear();
    panel.answers[qtTrId("DeletePatient")] = false;
    click("btnDeletePatient");
    EXPECT_EQ(panel.questions, QStringList(qtTrId("DeletePatient"))) << "no undo brings it back";
    EXPECT_EQ(value("FamilyName"), u"Clark"_s);
    panel.answers[qtTrId("DeletePatient")] = true;
    click("btnDeletePatient");
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(value("FamilyName"), u""_s);
    panel.questions.clear();
    click("btnDeletePatient");
    EXPECT_TRUE(panel.questions.empty()) << "nothing was typed";
    EXPECT_EQ(rows(), 2);
}

TEST_F(PatientPageTest, deletingAsksAndGoesToTheNeighbour) {
    addPatient(u"P3"_s, u"Clark"_s);
    addPatient(u"P0"_s, u"<b>Aaron"_s);
    start();
    EXPECT_TRUE(table().model()->index(0, 0).data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;Aaron"_s));
    clickRow(2);
    panel.answers[qtTrId("DeletePatient")] = false;
    click("btnDeletePatient");
    EXPECT_EQ(rows(), 4);
    panel.answers[qtTrId("DeletePatient")] = true;
    type("PatientNotes", u"typed before"_s);
    click("btnDeletePatient");
    EXPECT_FALSE(store.validIDinXML(u"P2"_s));
    EXPECT_EQ(store.getCurrentID(), u"P3"_s);
    click("btnDeletePatient");
    EXPECT_EQ(store.getCurrentID(), u"P1"_s) << "the last one's neighbour is above";
    click("btnDeletePatient");
    click("btnDeletePatient");
    EXPECT_TRUE(page("firstSteps").isVisible());
    EXPECT_FALSE(find<QPushButton>("btnDeletePatient").isEnabled());
    EXPECT_FALSE(hasPatients);
    beginNew(u"P4"_s, u"Dunn"_s);
    save();
    EXPECT_EQ(store.getCurrentID(), u"P4"_s);
    EXPECT_TRUE(hasPatients);
}

TEST_F(PatientPageTest, theSearchNarrowsTheListAndChoosesNobody) {
    addPatient(u"X77"_s, u"Müller"_s);
    start();
    auto& search = find<QLineEdit>("searchPatients");
    for (const auto& [words, IDs] :
         {std::pair(u"bak"_s, QStringList(u"P2"_s)), std::pair(u"x7"_s, QStringList(u"X77"_s)),
          std::pair(u"MULLER kim"_s, QStringList(u"X77"_s)), std::pair(u"p"_s, QStringList{u"P1"_s, u"P2"_s}),
          std::pair(u"zz"_s, QStringList())}) {
        press(Qt::Key_F, Qt::ControlModifier);
        search.clear();
        QTest::keyClicks(&search, words);
        QStringList found;
        for (int row = 0; row < rows(); ++row)
            found += rowID(row);
        EXPECT_EQ(found, IDs) << qPrintable(words);
        EXPECT_EQ(store.getCurrentID(), u"P1"_s);
        EXPECT_EQ(page("noPatientFound").isVisible(), IDs.empty());
    }
    search.clear();
    QTest::keyClicks(&search, u"bak"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    search.setFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(table().currentIndex().row(), 1);
    QTest::keyClicks(&search, u"bak"_s);
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(rows(), 4);
    QTest::keyClicks(&search, u"bak"_s);
    EXPECT_EQ(rows(), 2) << "the new patient is always there";
}

TEST_F(PatientPageTest, whatIsTypedOutlivesAReloadAndAChangeOfUnits) {
    start();
    type("Weight", u"80"_s);
    addPatient(u"P0"_s, u"Aaron"_s);
    EXPECT_EQ(value("Weight"), u"80"_s);
    store.getSetting().metricFormat = u"lb / in"_s;
    patients().UpdateUIBySetting();
    EXPECT_EQ(value("Weight"), u"80 kg"_s);
    EXPECT_EQ(find<QWidget>("Weight").accessibleName(), qtTrId("fieldWeightLb"));
}

TEST_F(PatientPageTest, savingKeepsWhatAnotherProgramWroteInTheMeantime) {
    start();
    type("PatientNotes", u"mine"_s);
    DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
    ASSERT_TRUE(other.load());
    PatientModel moved = *other.getPatientByID(u"P1"_s);
    moved.Address = u"elsewhere"_s;
    ASSERT_TRUE(other.saveXMLPatient(moved));
    save();
    EXPECT_EQ(patient(u"P1"_s).Address, u"elsewhere"_s);
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"mine"_s);
    EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'\n'));
    EXPECT_EQ(find<QPlainTextEdit>("Address").toPlainText(), u"elsewhere"_s);
}

TEST_F(PatientPageTest, patientsWithoutAnIDCanBeDeleted) {
    replaceDataFile(dataFile().replace("<ID>P1</ID>", "<ID/>").replace("<ID>P2</ID>", ""));
    ASSERT_TRUE(store.loadXML());
    addPatient(u"P3"_s, u"Clark"_s);
    start();
    for (const int left : {2, 1}) {
        clickRow(0);
        click("btnDeletePatient");
        EXPECT_EQ(rows(), left) << qPrintable(panel.messages.join(u'\n'));
    }
    EXPECT_EQ(rowID(0), u"P3"_s);
}

TEST_F(PatientPageTest, whatIsTypedOutlivesThePatientsRemovalByAnotherProgram) {
    start();
    type("PatientNotes", u"mine"_s);
    const QByteArray both = dataFile();
    DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
    ASSERT_TRUE(other.load());
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(panel.messages.join(u'\n'),
              qtTrId("Warning") + u": "_s + qtTrId("patientGone").arg(u"Kim Adams"_s));
    replaceDataFile("spoilt");
    EXPECT_FALSE(store.loadXML());
    EXPECT_EQ(panel.messages.size(), 1) << "nobody has gone from a file that cannot be read";
    replaceDataFile(both);
    ASSERT_TRUE(store.loadXML());
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(store.loadXML());
    save();
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"mine"_s);
    EXPECT_EQ(patient(u"P1"_s).FamilyName, u"Adams"_s);
    panel.answers[qtTrId("SavePatient")] = false;
    for (const bool deletes : {true, false}) {
        addPatient(u"P1"_s, u"Adams"_s);
        clickRow(0);
        type("PatientNotes", u"more"_s);
        ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
        ASSERT_TRUE(store.loadXML());
        if (deletes)
            click("btnDeletePatient");
        else
            EXPECT_TRUE(patients().leave());
        EXPECT_EQ(store.getCurrentID(), u"P2"_s) << deletes;
        EXPECT_EQ(value("FamilyName"), u"Baker"_s) << deletes;
    }
}

TEST_F(PatientPageTest, savingAPatientWhomAnotherProgramRemovedTellsAndAddsOnlyThen) {
    DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
    start();
    type("PatientNotes", u"mine"_s);
    ASSERT_TRUE(other.load());
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    save();
    EXPECT_EQ(panel.messages.join(u'\n'),
              qtTrId("Warning") + u": "_s + qtTrId("patientGone").arg(u"Kim Adams"_s));
    EXPECT_FALSE(store.validIDinXML(u"P1"_s));
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"mine"_s);
    save();
    EXPECT_EQ(patient(u"P1"_s).PatientNotes, u"mine"_s);
    EXPECT_EQ(patient(u"P1"_s).FamilyName, u"Adams"_s);
    panel.messages.clear();
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    save();
    const StoreError gone{StoreErrorCode::noSuchRecord, u"P1"_s, {}};
    EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": "_s + describe(gone)))
        << "nothing was typed";
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
}

TEST_F(PatientPageTest, patientsOfOneIDAreNeitherChangedNorDeleted) {
    QByteArray twins = dataFile();
    replaceDataFile(twins.replace("<ID>P2</ID>", "<ID>P1</ID>"));
    ASSERT_TRUE(store.loadXML());
    start();
    const QByteArray before = dataFile();
    type("PatientNotes", u"mine"_s);
    save();
    click("btnDeletePatient");
    const QString words = qtTrId("Warning") + u": "_s + qtTrId("patientIDTwice").arg(u"P1"_s);
    EXPECT_EQ(panel.messages, (QStringList{words, words}));
    EXPECT_EQ(dataFile(), before);
}

TEST_F(PatientPageTest, tellsWhatTheFileHadNoPlaceFor) {
    QByteArray lacking = dataFile();
    lacking.replace("<PatientNotes></PatientNotes>", "")
        .replace("<PatientNotes />", "")
        .replace("<PatientNotes/>", "");
    replaceDataFile(lacking);
    ASSERT_TRUE(store.loadXML());
    ASSERT_TRUE(patient(u"P1"_s).PatientNotes.isNull());
    start();
    type("PatientNotes", u"mine"_s);
    save();
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("Warning") + u": "_s + qtTrId("patientPartlySaved").arg(u"Kim Adams"_s)));
    clickRow(1);
    EXPECT_EQ(store.getCurrentID(), u"P1"_s);
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"mine"_s) << "what was typed is not lost";
}

} // namespace zel
