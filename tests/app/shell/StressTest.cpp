// The whole program is opened, finds its monitor, downloads, loses the monitor and quits, over and over, with
// no thread, open file or memory left behind. ZEL_ROUNDS says how often, 20 by default.
#include "app/shell/GlobalVar.h"
#include "support/FromEnvironment.h"
#include "support/MonitorTest.h"

#include <QDir>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <malloc.h>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What this process holds.
struct Held {
    qsizetype threads = entries(u"/proc/self/task"_s);
    qsizetype files = entries(u"/proc/self/fd"_s);
    std::size_t bytes = mallinfo2().uordblks; ///< none where a sanitizer has its own memory, and looks at it

    static qsizetype entries(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    }
};

class StressTest : public MonitorTest {
protected:
    StressTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        // Of no interest here: each is read, and closed without an answer.
        QObject::connect(&reader, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            told += box->text();
            box->reject();
        });
        reader.start(1ms);
    }
    [[nodiscard]] QWidget& window() override { return program->appController.mainWndow(); }

    void open() {
        device = std::make_unique<SimulatedMonitor>(plan, clock);
        auto plugged = std::make_unique<PluggedPort>(*device);
        cable = plugged.get();
        program = std::make_unique<GlobalVar>(
            StorePaths{
                .home = home.path(), .applicationFolder = home.path(), .templateFolder = u":/templates"_s},
            std::move(plugged), clock, AppController::Timing{.polling = 1ms, .splash = 1ms});
        program->appController.awakeFromNib(program->loaded);
        program->appController.applicationDidFinishLaunching(program->loaded);
    }
    void poll() {
        waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
    }
    void download() {
        click("btnDataTransfer");
        waitFor([this] { return !text("lblOutcome").isEmpty() && !program->status.isBusy(); });
        EXPECT_EQ(device->count(), 0U) << told.join(u'|').toStdString();
    }
    void unplug() {
        cable->plugged = false;
        waitFor([this] { return !program->status.state().isConnected; });
    }
    void quit() {
        const QSignalSpy closed(&program->appController, &AppController::closed);
        window().close();
        waitFor([&] { return !closed.empty(); });
        program.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QPixmapCache::clear(); // which would fill up to its limit
    }

    std::unique_ptr<GlobalVar> program;
    PluggedPort* cable = nullptr;
    QTimer reader;
    QStringList told;
};

} // namespace

TEST_F(StressTest, NothingIsLeftBehind) {
    constexpr unsigned warmingUp = 5; // fonts, styles and the like are kept by their libraries
    const unsigned rounds = std::max(fromEnvironment("ZEL_ROUNDS", 20), warmingUp + 1);
    std::optional<Held> before;
    for (unsigned round = 0; round < rounds && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        if (round == warmingUp) before = Held();
        told.clear();
        open();
        poll();
        download();
        unplug();
        quit();
    }
    const Held now;
    EXPECT_EQ(now.threads, before->threads);
    EXPECT_EQ(now.files, before->files);
    const auto growth = static_cast<double>(now.bytes) - static_cast<double>(before->bytes);
    std::printf("%u rounds, %.0f bytes more\n", rounds, growth);
    EXPECT_LT(growth / (rounds - warmingUp), 8000.0) << "bytes a round; a window costs Qt itself some 3,000";
    EXPECT_EQ(dataFile().count("<MeasureRec>"), 12) << "once each, however often they came";
}

} // namespace zel
