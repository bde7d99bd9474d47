#include "AppTest.h"
#include "support/Traces.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QStandardPaths>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// With the user's own folders, and the one for temporary files, in a place of their own.
class AppPrivacyTest : public AppTest {
protected:
    AppPrivacyTest() {
        for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
            before.emplace_back(name, qgetenv(name));
            const QString place = around.filePath(QLatin1StringView(name));
            QDir().mkdir(place);
            qputenv(name, place.toUtf8());
        }
    }
    ~AppPrivacyTest() override {
        for (const auto& [name, value] : before)
            value.isNull() ? qunsetenv(name.constData()) : qputenv(name.constData(), value);
    }
    void open(const QString& at, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(at).constData(), mode), 0);
    }

    QTemporaryDir outside;
    QTemporaryDir around;
    std::vector<std::pair<QByteArray, QByteArray>> before;
};

} // namespace

TEST_F(AppPrivacyTest, aWorkingDayLeavesNoTraceOfThePatientsAndNothingToOthers) {
    const QStringList texts{u"QXZ-771-04"_s, u"Wolpertinger"_s, u"Xaverine"_s,
                            u"1937"_s,       u"Kohlmeise"_s,    u"Blaumeise"_s};
    const Withheld nothing(0);
    const DefaultLog log;
    chooser.folder = outside.path();
    chooser.pdf = outside.filePath(u"report.pdf"_s);
    plan.ID = "QXZ-771-04";
    start();
    click("btnNewPatient");
    type("ID", texts[0]);
    type("FamilyName", texts[1]);
    type("GivenNames", texts[2]);
    type("BirthYear", texts[3]);
    type("PatientNotes", texts[4]);
    for (const char* list : {"BirthMonth", "BirthDay"})
        QTest::keyClick(&page(list), Qt::Key_Down);
    click("btnSavePatient");
    waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
    download();
    ASSERT_EQ(store.getReadingForCurID().size(), 12U) << qPrintable(panel.messages.join(u'|'));
    CommentModel comment;
    comment.beginDate = comment.endDate = store.getReadingForCurID().front().ReadingDate;
    comment.comment = texts[5];
    ASSERT_TRUE(store.addCommentForCurID(comment));
    for (const auto tab : {Qt::Key_2, Qt::Key_3, Qt::Key_1})
        press(tab, Qt::ControlModifier);
    press(Qt::Key_P, Qt::ControlModifier);
    click("savePdf");
    click("cancelPrint");
    click("settingBtn");
    click("exportButton");
    click("csvButton");
    find<QComboBox>("dateFormate").setCurrentText(u"yyyy mm dd"_s);
    QTest::keyClick(&page("SettingController"), Qt::Key_Return);
    app->showHelp();
    click("btnDeletePatient");
    chooser.files = {outside.filePath(u"QXZ-771-04.xml"_s)};
    click("settingBtn");
    click("importButton");
    click("importButton"); // who is known by now
    click("cancelButton");
    type("PatientNotes", texts[4] + u" unsaved"_s);
    app->terminate();
    EXPECT_EQ(QDir(outside.path()).entryList(QDir::Files).size(), 3);
    EXPECT_TRUE(dataFile().contains(texts[1].toUtf8()));
    EXPECT_FALSE(DefaultLog::lines().isEmpty());
    for (const QTemporaryDir* place : {&home, &outside, &around}) // whose names are random
        DefaultLog::lines().replaceInStrings(place->path(), QString());
    EXPECT_EQ(DefaultLog::telling(texts).join(u'|').toStdString(), "");
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    EXPECT_TRUE(cache.startsWith(around.path())
                && QFile::remove(cache + u"/help.pdf"_s)); // whatever numbers it has
    EXPECT_EQ(traces(around.path(), texts).join(u'|').toStdString(), "");
    EXPECT_EQ(openToOthers(home.path() + u"/Library"_s).join(u'|').toStdString(), "");
    EXPECT_EQ(openToOthers(outside.path()).join(u'|').toStdString(), "");
}

TEST_F(AppPrivacyTest, thatOthersCanReadTheDataIsAskedOnceAndNoChangesNothing) {
    startsPlugged = false;
    addPatient(u"P1"_s, u"Adams"_s);
    start();
    EXPECT_FALSE(panel.questions.contains(qtTrId("privacyTitle"))) << "they cannot";
    const QString path = store.getZELXMLPath();
    for (QString at = QFileInfo(path).path(); at.size() >= home.path().size(); at = QFileInfo(at).path())
        open(at, 0755);
    open(path, 0644);
    for (const bool answer : {false, true}) {
        panel.questions.clear();
        panel.answers[qtTrId("privacyTitle")] = answer;
        panel.isTyping = true;
        start();
        EXPECT_TRUE(panel.questions.isEmpty()) << "no key that was meant for a field answers it";
        ASSERT_EQ(panel.heldBack.size(), 1U);
        panel.heldBack.front()();
        panel.heldBack.clear();
        EXPECT_EQ(panel.questions, QStringList(qtTrId("privacyTitle")));
        EXPECT_TRUE(panel.asked.contains(path));
        EXPECT_EQ(openToOthers(home.path()).contains(u"644 "_s + path.mid(home.path().size())), !answer);
    }
    EXPECT_EQ(text("lblOutcome"), qtTrId("privacyMended"));
    EXPECT_FALSE(store.isChangedElsewhere()) << "it was this program";
}

} // namespace zel
