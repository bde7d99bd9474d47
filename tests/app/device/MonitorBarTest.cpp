#include "app/device/MonitorBar.h"

#include "support/WidgetTest.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The bar over a field that somebody types in.
class MonitorBarTest : public WidgetTest {
protected:
    MonitorBarTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        bar = new MonitorBar(status, store, content);
        field = new QPushButton(content);
        column->addWidget(bar);
        column->addWidget(field);
        show(content);
        field->setFocus();
    }
    void connectMonitor(const QString& ID) {
        status.update([&](MonitorState& state) {
            state.isConnected = true;
            state.IDOnDevice = ID;
        });
    }
    void pullOut() {
        status.update([](MonitorState& state) { state = {}; });
    }
    /// What can be pressed in the bar beside Close.
    QStringList offers() {
        QStringList names;
        for (const auto* button : bar->findChildren<QPushButton*>())
            if (button->isVisible() && button->objectName() != u"btnBarClose"_s)
                names += button->objectName();
        return names;
    }

    MonitorStatus status;
    MonitorBar* bar;
    QPushButton* field;
};

} // namespace

TEST_F(MonitorBarTest, saysWhoseMonitorItIsAndOffersWhatComesNext) {
    struct Case {
        QString ID, text;
        QStringList offers;
    };
    const QString similar = u' ' + qtTrId("monitorIDSimilar").arg(u"P1"_s, u"Kim Adams"_s);
    for (const Case& c :
         {Case{u"P1"_s, qtTrId("monitorConnectedID").arg(u"P1"_s), {u"btnBarDownload"_s}},
          Case{u"P9"_s, qtTrId("newIDFromDevice").arg(u"P9"_s), {u"btnBarNewPatient"_s}},
          Case{u"p 1"_s, qtTrId("newIDFromDevice").arg(u"p 1"_s) + similar, {u"btnBarNewPatient"_s}},
          Case{u""_s, qtTrId("monitorWithoutID"), {}}, Case{u"-"_s, qtTrId("monitorWithoutID"), {}}}) {
        SCOPED_TRACE(qPrintable(c.ID));
        connectMonitor(c.ID); // the bar follows from one to the next
        EXPECT_TRUE(bar->isVisible());
        EXPECT_EQ(text("lblMonitorBar"), c.text);
        EXPECT_EQ(bar->accessibleDescription(), c.text);
        EXPECT_EQ(offers(), c.offers);
        EXPECT_TRUE(field->hasFocus());
    }
    connectMonitor(u"P1"_s);
    EXPECT_TRUE(text("lblMonitorBarTitle").contains(u"Kim Adams"_s)) << "who is to be downloaded for";
    expectNamed(*bar);
    pullOut();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(MonitorBarTest, staysClosedForTheIDItWasClosedForUntilTheMonitorComesAgain) {
    connectMonitor(u"P1"_s);
    press(Qt::Key_F6);
    EXPECT_TRUE(page("btnBarDownload").hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_TRUE(field->hasFocus());
    status.setActivity(MonitorActivity::greeting);
    status.setActivity(MonitorActivity::none);
    ASSERT_TRUE(store.loadXML());
    EXPECT_FALSE(bar->isVisible());
    connectMonitor(u"P9"_s);
    EXPECT_TRUE(bar->isVisible()) << "another one has taken its place";
    click("btnBarClose");
    pullOut();
    connectMonitor(u"P9"_s);
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(MonitorBarTest, offersNothingThatCannotBeDoneNow) {
    auto& download = find<QPushButton>("btnBarDownload");
    connectMonitor(u"P1"_s);
    status.setActivity(MonitorActivity::counting);
    EXPECT_FALSE(download.isEnabled());
    status.setActivity(MonitorActivity::none);
    EXPECT_TRUE(download.isEnabled());
    status.update([](MonitorState& state) { state.trouble = MonitorResult::timeOut; });
    EXPECT_FALSE(download.isEnabled());
    EXPECT_TRUE(bar->isVisible()) << "one answer that is missing moves no page";
}

TEST_F(MonitorBarTest, movesNoPageUnderAPointerThatHoldsSomething) {
    QTest::mousePress(host->windowHandle(), Qt::LeftButton, {}, {5, host->height() - 5});
    connectMonitor(u"P1"_s);
    EXPECT_FALSE(bar->isVisible());
    QTest::mouseRelease(host->windowHandle(), Qt::LeftButton, {}, {5, host->height() - 5});
    waitFor([this] { return bar->isVisible(); });
}

TEST_F(MonitorBarTest, followsTheRoster) {
    connectMonitor(u"P2"_s);
    const QSignalSpy wanted(bar, &MonitorBar::newPatientWanted), download(bar, &MonitorBar::downloadWanted);
    click("btnBarNewPatient");
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted.first().first(), u"P2"_s);
    addPatient(u"P2"_s, u"Baker"_s);
    EXPECT_EQ(offers(), QStringList(u"btnBarDownload"_s));
    click("btnBarDownload");
    ASSERT_EQ(download.size(), 1);
    EXPECT_EQ(download.first().first(), u"P2"_s);
}

} // namespace zel
