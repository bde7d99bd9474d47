#include "AppFixture.h"
#include "app/MessageBoxPanel.h"
#include "app/SplashWindow.h"
#include "app/TabButton.h"

#include <QFile>
#include <QIntValidator>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class WindowTest : public AppTest {
protected:
    WindowTest() { addPatient(u"P1"_s, u"Adams"_s); }
    std::vector<bool> shownTabs() {
        return {find<TabButton>("patientBtn").isShown(), find<TabButton>("graphBtn").isShown(),
                find<TabButton>("tableBtn").isShown()};
    }
};

QStringList* collected = nullptr;
void collect(QtMsgType, const QMessageLogContext& context, const QString& text) {
    if (collected && qstrcmp(context.category, "zel.app") == 0) *collected += text;
}

} // namespace

TEST_F(WindowTest, startsInOrderAndAsksTheMonitorNothingBeforeTheSplashHasGone) {
    QStringList lines;
    collected = &lines;
    const auto previous = qInstallMessageHandler(collect);
    device = std::make_unique<SimulatedMonitor>(plan, clock);
    port = std::make_unique<PluggedPort>(*device);
    worker = std::make_unique<MonitorWorker>(*port, clock);
    using namespace std::chrono_literals;
    app = std::make_unique<AppController>(parts(), AppController::Timing{.polling = 0ms, .splash = 50ms});
    app->awakeFromNib(loaded);
    app->applicationDidFinishLaunching(loaded);
    int openedUnderSplash = -1;
    QObject::connect(&find<SplashWindow>("splash"), &SplashWindow::splashClosed, app.get(),
                     [&] { openedUnderSplash = port->opened; });
    EXPECT_TRUE(find<QWidget>("splash").isModal());
    waitFor([this] { return session.state().isConnected; });
    qInstallMessageHandler(previous);
    collected = nullptr;
    EXPECT_EQ(lines, (QStringList{u"monitorBPM 2 .... 0"_s, u"show slash"_s, u"close slash"_s}));
    EXPECT_EQ(openedUnderSplash, 0);
    EXPECT_EQ(app->mainWndow().windowTitle(), qtTrId("AP_Title"));
    EXPECT_EQ(app->mainWndow().minimumSize(), QSize(640, 480));
}

TEST_F(WindowTest, switchesPagesByMouseAndKeyboard) {
    start();
    EXPECT_EQ(shownTabs(), (std::vector{true, false, false}));
    EXPECT_TRUE(page("sideColumn").isVisible());
    click("graphBtn");
    EXPECT_EQ(app->selectedTab(), 1);
    EXPECT_TRUE(page("GraphViewController").isVisible());
    EXPECT_EQ(shownTabs(), (std::vector{false, true, false}));
    EXPECT_FALSE(page("sideColumn").isVisible());
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(page("TableViewController").isVisible());
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_TRUE(page("sideColumn").isVisible());
}

TEST_F(WindowTest, staysOnAPageWhoseFieldDoesNotValidate) {
    start();
    QLineEdit field(&page("PatientViewController"));
    field.setValidator(new QIntValidator(1, 9, &field));
    field.setText(u"x"_s);
    click("tableBtn");
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_EQ(app->selectedTab(), 2) << "set before the page had its say";
    field.setText(u"7"_s);
    click("tableBtn");
    EXPECT_TRUE(page("TableViewController").isVisible());
}

TEST_F(WindowTest, quitsByCloseButtonAndKey) {
    start();
    const QSignalSpy closed(app.get(), &AppController::closed);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(closed.size(), 1);
    app->mainWndow().close();
    EXPECT_EQ(closed.size(), 2);
}

TEST_F(WindowTest, everyControlSaysWhatItIs) {
    start();
    for (const QWidget* control : app->mainWndow().findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_"_s)) continue;
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
    }
}

TEST_F(WindowTest, tabsHaveTheirImages) {
    start();
    for (const char* name : {"patientBtn", "graphBtn", "tableBtn"}) {
        auto& tab = find<TabButton>(name);
        for (const bool enabled : {false, true}) {
            tab.setEnabled(enabled);
            EXPECT_TRUE(QFile::exists(u":/icons/%1.svg"_s.arg(tab.imageName())))
                << qPrintable(tab.imageName());
        }
    }
}

TEST(MessageBoxPanelTest, takesNoAnswerFromEsc) {
    MessageBoxPanel panel;
    const auto answerWith = [](const char* button) {
        QTimer::singleShot(0, qApp, [button] {
            QWidget* box = QApplication::activeModalWidget();
            QTest::keyClick(box, Qt::Key_Escape);
            EXPECT_TRUE(box->isVisible()) << "the answer no may delete readings";
            QTest::mouseClick(box->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    };
    answerWith("btnNo");
    EXPECT_FALSE(panel.AskMessage(u"text"_s, u"title"_s));
    answerWith("btnYes");
    EXPECT_TRUE(panel.AskMessage(u"text"_s, u"title"_s));
}

TEST(MessageBoxPanelTest, enterOrEscAloneErasesNothing) {
    MessageBoxPanel panel;
    const auto press = [](Qt::Key key) {
        QTimer::singleShot(0, qApp, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        press(key);
        EXPECT_FALSE(panel.AskToErase(u"text"_s, u"title"_s));
    }
    press(Qt::Key_Return);
    EXPECT_TRUE(panel.AskMessage(u"text"_s, u"title"_s));
}

TEST(MessageBoxPanelTest, keepsTheButtonOfALongMessageOnTheScreen) {
    MessageBoxPanel panel;
    QTimer::singleShot(0, qApp, [] {
        QWidget* box = QApplication::activeModalWidget();
        EXPECT_LT(box->height(), box->screen()->availableSize().height());
        EXPECT_TRUE(box->findChild<QWidget*>(u"longText"_s)->isVisible());
        QTest::mouseClick(box->findChild<QWidget*>(u"btnOK"_s), Qt::LeftButton);
    });
    panel.ShowMessage(u"One file of many, each on its line\n"_s.repeated(200), u"title"_s);
}

TEST_F(WindowTest, withABrokenDataFileStartsEmptyAndSaysWhatIsWrong) {
    replaceDataFile("<ZEL><Patient>");
    loaded = store.loadXML();
    startsPlugged = false;
    start();
    ASSERT_EQ(panel.messages.size(), 1);
    EXPECT_EQ(panel.messages.first(), qtTrId("dataFileUnreadable") + u": "_s + describe(loaded.error()));
    EXPECT_TRUE(page("noPatients").isVisible());
    const auto labels = page("noPatients").findChildren<QLabel*>();
    const auto isEmptyRoster = [](const QLabel* label) { return label->text() == qtTrId("noPatients"); };
    EXPECT_TRUE(!labels.empty() && std::ranges::none_of(labels, isEmptyRoster)) << "none is pretended";
    EXPECT_FALSE(page("graphBtn").isEnabled());
    EXPECT_EQ(dataFile(), "<ZEL><Patient>");
}

TEST_F(WindowTest, quitDuringAMessageAtStartShowsNothingMore) {
    replaceDataFile("<ZEL>");
    loaded = store.loadXML();
    panel.whenShown = [this] { app->closeApplicaiton(); };
    launch();
    EXPECT_EQ(app->mainWndow().findChild<QWidget*>(u"splash"_s), nullptr);
}

} // namespace zel
