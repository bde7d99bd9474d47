// Every window in every language, on a screen of 1366 x 768. ZEL_LANGUAGE_PICTURES=FOLDER has them painted
// into a folder.
#include "AppTest.h"
#include "CutTexts.h"
#include "app/shell/HelpDocument.h"
#include "store/Languages.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize smallScreen{1366, 745}; ///< less what the desktop takes

/// Voice control says what is written, and not the key that opens it.
void expectSpokenWithoutKeys(const QWidget& window) {
    for (const QWidget* one : window.findChildren<QWidget*>())
        EXPECT_FALSE(one->accessibleName().contains(QRegularExpression(u"&|\\([A-Z]\\)"_s)))
            << qPrintable(one->objectName()) << ": " << qPrintable(one->accessibleName());
}

class LanguageTest : public AppTest {
protected:
    LanguageTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        printers.known = {u"Office"_s};
    }
    void openIn(const Language& spoken) {
        language = spoken.tag.toString();
        startConnected();
        download();
        app->mainWndow().setWindowState(Qt::WindowNoState);
        app->mainWndow().resize(smallScreen);
        settle();
        ASSERT_EQ(app->mainWndow().size(), smallScreen);
    }
    static void settle() {
        for (int i = 0; i < 5; ++i) // a layout that changes others needs its turns
            QCoreApplication::processEvents();
    }
    void look(QWidget& at, const QString& name) const {
        settle();
        expectNothingCut(at);
        expectListsWhole(at);
        expectSpokenWithoutKeys(at);
        const QString folder = qEnvironmentVariable("ZEL_LANGUAGE_PICTURES");
        if (folder.isEmpty()) return;

        EXPECT_TRUE(at.grab().save(folder + u'/' + name + u'-' + language + u".png"_s));
    }
    void lookAtDialog(QDialog& dialog) const {
        look(dialog, dialog.objectName());
        EXPECT_LE(dialog.width(), smallScreen.width());
        EXPECT_LE(dialog.height(), smallScreen.height());
        for (const char* area : {"downloadsScroll", "backupScroll"}) {
            const auto* body = dialog.findChild<QScrollArea*>(QLatin1StringView(area));
            EXPECT_TRUE(!body || body->verticalScrollBar()->maximum() == 0) << "there is room for all";
        }
        dialog.reject();
    }
    /// Of an action that waits until its dialog is closed.
    void lookAtDialogOf(const char* action) {
        bool isSeen = false;
        QTimer::singleShot(0, &app->mainWndow(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog) << action;
            isSeen = true;
            lookAtDialog(*dialog);
        });
        find<QAction>(action).trigger();
        EXPECT_TRUE(isSeen) << action;
    }
    void lookAtPages() {
        for (const char* button :
             {"patientBtn", "tableBtn", "graphBtn", "toggleHistogram", "toggleCorrelation", "toggleTrend"}) {
            SCOPED_TRACE(button);
            click(button);
            look(app->mainWndow(), QString::fromLatin1(button));
            for (const auto* side : app->mainWndow().findChildren<QScrollArea*>(u"readingSide"_s))
                EXPECT_TRUE(!side->isVisible() || side->widget()->width() <= side->viewport()->width())
                    << "the panels' right edges are seen";
        }
        click("patientBtn");
        click("btnNewPatient");
        look(app->mainWndow(), u"newPatient"_s);
        panel.answers = {};
        click("btnDeletePatient");
        settle();
    }
    void lookAtDialogs() {
        app->showSetting();
        settle();
        for (const auto* bar : page("settingScroll").findChildren<QScrollBar*>())
            EXPECT_EQ(bar->maximum(), 0) << "all settings are seen at once";
        lookAtDialog(find<QDialog>("SettingController"));
        app->showPrint();
        lookAtDialog(find<QDialog>("PrintController"));
        app->showBackups();
        lookAtDialog(find<QDialog>("BackupDialog"));
        for (const auto& [action, dialog] :
             {std::pair("showKeys", "KeysDialog"), {"showDownloads", "DownloadsDialog"}}) {
            find<QAction>(action).trigger();
            lookAtDialog(find<QDialog>(dialog));
        }
        click("tableBtn");
        settle();
        lookAtDialogOf("newReading");
    }

    QString language;
};

} // namespace

TEST_F(LanguageTest, nothingIsCutInAnyLanguage) {
    for (const Language& spoken : languages()) {
        SCOPED_TRACE(spoken.tag.data());
        {
            const ProgramTexts texts(spoken);
            openIn(spoken);
            lookAtPages();
            lookAtDialogs();
            app.reset();
        }
    }
}

TEST_F(LanguageTest, nothingIsCutBeforeThereIsAPatient) {
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s) && store.loadXML());
    demonstration = {.isOn = true, .start = [] { return QString(); }};
    for (const Language& spoken : languages()) {
        SCOPED_TRACE(spoken.tag.data());
        const ProgramTexts texts(spoken);
        language = spoken.tag.toString();
        startConnected();
        ASSERT_TRUE(page("btnDemonstration").isVisible() && page("monitorBar").isVisible());
        for (const QSize& screen : {smallScreen, QSize(640, 455)}) {
            app->mainWndow().setWindowState(Qt::WindowNoState);
            app->mainWndow().resize(screen);
            look(app->mainWndow(), u"firstRun%1"_s.arg(screen.width()));
        }
        app.reset();
    }
}

TEST_F(LanguageTest, theManualIsInTheProgramsLanguageWhereThereIsOne) {
    for (const auto& [spoken, document, text] :
         {std::tuple{"de_AT", u":/help.de.pdf"_s, u":/manual/manual.de.md"_s},
          std::tuple{"fr", u":/help.pdf"_s, u":/manual/manual.md"_s}}) {
        const ProgramTexts texts(*languageFor(QString::fromLatin1(spoken)));
        EXPECT_EQ(manualResource(u":/help%1.pdf"_s), document);
        EXPECT_EQ(manualResource(u":/manual/manual%1.md"_s), text);
        EXPECT_TRUE(QFile::exists(document) && QFile::exists(text));
    }
}

} // namespace zel
