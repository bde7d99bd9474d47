#include "WatchTest.h"
#include "app/device/ProgressWindowController.h"
#include "support/DamageAfterWrite.h"

#include <QProgressBar>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class DownloadTest : public WatchTest {
protected:
    DownloadTest() { setEraseAfterReading(false); }
    void startConnected() {
        store.setCurrentID(u"P1"_s);
        WatchTest::startConnected();
        progress = new ProgressWindowController({store, status, *worker}, &window());
        QObject::connect(progress, &ProgressWindowController::finished,
                         [this](const DownloadOutcome& how) { outcome = how; });
    }
    void begin() {
        outcome.reset();
        progress->showProgress();
    }
    DownloadOutcome end() {
        waitFor([this] { return outcome.has_value(); });
        EXPECT_FALSE(progress->isVisible());
        EXPECT_FALSE(status.isBusy());
        return outcome.value_or(DownloadOutcome{});
    }
    DownloadOutcome download() {
        begin();
        return end();
    }
    void setEraseAfterReading(bool erases) {
        store.getSetting().eraseRecAfterReading = erases ? 1 : 0;
        ASSERT_TRUE(store.saveSetting());
    }

    ProgressWindowController* progress = nullptr;
    std::optional<DownloadOutcome> outcome;
    const DownloadOutcome all{.downloaded = 12, .added = 12};
};

struct Failure {
    const char* name;
    SimulatedFault fault;
    MonitorResult result;
};
class FailingDownloadTest : public DownloadTest, public testing::WithParamInterface<Failure> {};

} // namespace

TEST_F(DownloadTest, ofTheSameReadingsAgainChangesNothing) {
    startConnected();
    EXPECT_EQ(download(), all);
    const QByteArray before = dataFile();
    const DownloadOutcome again = download();
    EXPECT_EQ(dataFile(), before);
    EXPECT_TRUE(describe(again).contains(u"none new"_s)) << qPrintable(describe(again));
    EXPECT_EQ(again, (DownloadOutcome{.downloaded = 12}));
}

TEST_F(DownloadTest, tellsOfATypedReadingThatItLeavesOut) {
    startConnected();
    const QByteArray before = dataFile();
    EXPECT_EQ(download(), all);
    const auto measured = ManualReading::of(store.getReadingForCurID().front());
    replaceDataFile(before);
    ASSERT_TRUE(store.addReading(u"P1"_s, measured));
    const DownloadOutcome how = download();
    EXPECT_EQ(how, (DownloadOutcome{.downloaded = 12, .added = 12, .leftOut = 1}));
    EXPECT_TRUE(describe(how).endsWith(u", 12 new; "_s + qtTrId("downloadTypedLeftOut", 1)));
}

TEST_F(DownloadTest, ofAnEmptyMonitorSaysSo) {
    plan.records.clear();
    startConnected();
    const QByteArray before = dataFile();
    EXPECT_EQ(describe(download()), qtTrId("downloadEmpty"));
    EXPECT_EQ(dataFile(), before);
}

TEST_F(DownloadTest, emptiesTheMonitorOnceTheReadingsAreStored) {
    setEraseAfterReading(true);
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::sendID, .times = 1}};
    startConnected();
    EXPECT_EQ(download().failure, qtTrId("eraseFailed").arg(describe(all), describe(MonitorResult::timeOut)));
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_EQ(readingsInMonitor(), 12);
    EXPECT_EQ(download(), (DownloadOutcome{.downloaded = 12}));
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_EQ(readingsInMonitor(), 0);
}

TEST_F(DownloadTest, erasesNothingThatCouldNotBeStored) {
    setEraseAfterReading(true);
    startConnected();
    begin();
    replaceDataFile("<ZEL><Patient>");
    EXPECT_TRUE(describe(end()).contains(qtTrId("downloadNotStored").section(u'%', 0, 0)));
    EXPECT_EQ(dataFile(), "<ZEL><Patient>");
    EXPECT_EQ(readingsInMonitor(), 12);
}

TEST_F(DownloadTest, forAPatientWhoGoesMeanwhileStoresAndErasesNothing) {
    setEraseAfterReading(true);
    addPatient(u"P2"_s, u"Baker"_s);
    startConnected();
    const QByteArray both = dataFile();
    const QByteArray without = QByteArray(both).replace("<ID>P1</ID>", "<ID>P9</ID>");
    begin();
    replaceDataFile(without);
    const StoreError gone{StoreErrorCode::noSuchRecord, u"P1"_s, {}};
    EXPECT_EQ(describe(end()), qtTrId("downloadNotStored").arg(describe(gone)));
    EXPECT_EQ(dataFile(), without);
    EXPECT_EQ(readingsInMonitor(), 12);

    replaceDataFile(both);
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"P1"_s);
    begin();
    store.setCurrentID(u"P2"_s); // as a reload of the roster may
    EXPECT_EQ(end(), all);
    EXPECT_TRUE(store.getReadingForCurID().empty());
    store.setCurrentID(u"P1"_s);
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
}

TEST_F(DownloadTest, thatCannotBeReadBackIsToldAsStoredAndErasesNothing) {
    setEraseAfterReading(true);
    startConnected();
    const DamageAfterWrite damage(store.getZELXMLPath());
    begin();
    const DownloadOutcome ended = end();
    EXPECT_EQ(ended.added, 12U);
    EXPECT_EQ(describe(ended),
              qtTrId("downloadNotReadBack").arg(describe(all), describe(store.lastLoad().error())));
    EXPECT_EQ(readingsInMonitor(), 12);
}

TEST_P(FailingDownloadTest, storesNothingSaysWhyAndWorksTheNextTime) {
    setEraseAfterReading(true);
    plan.faults = {GetParam().fault};
    startConnected();
    const QByteArray before = dataFile();
    EXPECT_EQ(describe(download()), qtTrId("downloadFailed").arg(describe(GetParam().result)));
    EXPECT_EQ(dataFile(), before);
    waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
    EXPECT_EQ(download(), all);
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
}
INSTANTIATE_TEST_SUITE_P(Faults, FailingDownloadTest,
                         testing::Values(Failure{"unplugged",
                                                 {.kind = SimulatedFault::Kind::unplug,
                                                  .command = Command::records,
                                                  .times = 1,
                                                  .afterReports = 20,
                                                  .replugAfterOpens = 4},
                                                 MonitorResult::noDevice},
                                         Failure{"garbled",
                                                 {.kind = SimulatedFault::Kind::badCheckField,
                                                  .command = Command::records,
                                                  .times = 3},
                                                 MonitorResult::badCheckField}),
                         [](const auto& parameter) { return parameter.param.name; });

TEST_F(DownloadTest, aFaultOfTheLineLeavesFileAndMonitorInOrderAndTheNextDownloadWorks) {
    using enum SimulatedFault::Kind;
    using namespace std::chrono_literals;
    setEraseAfterReading(true);
    const QByteArray before = dataFile();
    const std::vector<std::pair<Command, int>> answers{{Command::version, 1},
                                                       {Command::id, 3},
                                                       {Command::date, 11},
                                                       {Command::records, 40}}; // reports of each
    for (const auto& [command, reports] : answers) {
        for (const auto kind : {unplug, halfAnswer, wrongByte, surplusByte, late}) {
            for (const int report : {0, reports / 2, reports - 1}) {
                SCOPED_TRACE(testing::Message()
                             << static_cast<int>(command) << ' ' << static_cast<int>(kind) << ' ' << report);
                replaceDataFile(before);
                ASSERT_TRUE(store.loadXML());
                plan.faults = {{.kind = kind,
                                .command = command,
                                .times = 1,
                                .afterReports = report,
                                .delay = 4s,
                                .replugAfterOpens = 2}};
                startConnected();
                DownloadOutcome how = download();
                if (how != all) {
                    EXPECT_NE(how.failure, QString());
                    EXPECT_EQ(dataFile(), before);
                    EXPECT_EQ(readingsInMonitor(), 12);
                    waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
                    how = download();
                }
                EXPECT_EQ(how, all) << qPrintable(describe(how));
                EXPECT_EQ(store.getReadingForCurID().size(), 12U);
                EXPECT_EQ(readingsInMonitor(), 0);
            }
        }
    }
}

TEST_F(DownloadTest, endsWhenTheUserCancelsIt) {
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::records, .times = 1}};
    startConnected();
    const QByteArray before = dataFile();
    clock.stands = true; // the answer never comes
    begin();
    waitFor([this] { return progress->isActiveWindow(); });
    press(Qt::Key_Escape);
    const WallTime cancelled = clock.now();
    clock.stands = false;
    EXPECT_EQ(describe(end()), qtTrId("downloadCancelled"));
    EXPECT_EQ(std::chrono::round<std::chrono::seconds>(clock.now() - cancelled).count(), 3) << "for quiet";
    EXPECT_EQ(dataFile(), before);
    EXPECT_TRUE(status.state().isConnected);
    EXPECT_EQ(download(), all) << "the next attempt works";
}

TEST_F(DownloadTest, neverStoresAnotherMonitorsReadings) {
    addPatient(u"P2"_s, u"Baker"_s);
    startConnected();
    store.setCurrentID(u"P2"_s); // as if the monitor had been changed since it was last asked
    const QByteArray before = dataFile();
    EXPECT_EQ(describe(download()), qtTrId("downloadOtherMonitor"));
    EXPECT_EQ(dataFile(), before);
}

TEST_F(DownloadTest, saysHowLongItWaitsForASilentMonitor) {
    using namespace std::chrono_literals;
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::records}};
    startConnected();
    clock.stands = true; // what is waited for passes only as it is told to
    begin();
    waitFor([this] { return port->recordsAsked > 0; });
    const auto seconds = [this] {
        return text("lblWaiting").remove(QRegularExpression(u"[^0-9]"_s)).toInt();
    };
    waitFor([&] {
        clock.advance(1s);
        return seconds() > 0;
    });
    const int first = seconds();
    EXPECT_LE(first, 150) << "three tries";
    clock.advance(10s);
    waitFor([&] { return seconds() <= first - 10; });
    click("btnCancel");
    EXPECT_TRUE(text("lblWaiting").isEmpty());
    clock.stands = false;
    EXPECT_TRUE(end().cancelled);
    EXPECT_TRUE(text("lblWaiting").isEmpty());
}

TEST_F(DownloadTest, saysWhenTheMonitorIsNotEmptiedAfterAll) {
    setEraseAfterReading(true);
    prepare = [this] { port->keepsNothing = true; };
    startConnected();
    EXPECT_EQ(download().failure,
              qtTrId("eraseFailed").arg(describe(all), describe(MonitorResult::notTaken)));
    EXPECT_EQ(readingsInMonitor(), 12);
}

TEST_F(DownloadTest, progressNeverGoesBack) {
    startConnected();
    begin();
    auto& bar = find<QProgressBar>("barProgress");
    std::vector<int> shown;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar, [&](int value) { shown.push_back(value); });
    std::ignore = end();
    EXPECT_THAT(shown, testing::AllOf(testing::Contains(100), testing::SizeIs(testing::Gt(1U))));
    EXPECT_TRUE(std::ranges::is_sorted(shown));

    begin(); // a new download starts at the beginning
    EXPECT_EQ(bar.value(), 0);
    progress->setProcessInfo(10, 5);
    progress->setProcessInfo(10, 4);
    EXPECT_EQ(bar.value(), 50);
    std::ignore = end();
}

} // namespace zel
