#include "AppFixture.h"

#include <QFile>

namespace zel {

using namespace Qt::StringLiterals;

void ScriptedPanel::ShowMessage(const QString& text, const QString& title) {
    messages += title + u": "_s + text;
    whenShown();
}

bool ScriptedPanel::AskMessage(const QString&, const QString& title) {
    questions += title;
    whenAsked();
    return answers.value(title, true);
}

QString ScriptedChooser::chooseFolder(QWidget*, const QString& title) {
    asked += title;
    return folder;
}

QStringList ScriptedChooser::chooseFiles(QWidget*) {
    asked += u"files"_s;
    return files;
}

QString ScriptedChooser::choosePdf(QWidget*, const QString&, const QString& name) {
    asked += name;
    return pdf;
}

PrintResult ScriptedPrinters::print(const QString& printer, const PrintView& view, Section section) {
    if (view.getTotalPages(section) == 0) return PrintResult::noData;
    if (!known.contains(printer)) return PrintResult::noPrinter;
    printed += printer + u": "_s + QLatin1StringView(facts(section).key);
    return PrintResult::printed;
}

void TestClock::sleep(std::chrono::microseconds duration) {
    if (stands)
        QThread::msleep(1);
    else
        manual.sleep(duration);
}

PortOpen PluggedPort::open() {
    ++opened;
    if (denied) return PortOpen::denied;
    return plugged ? device.open() : PortOpen::absent;
}

AppTest::AppTest()
    : store({.home = home.path(), .applicationFolder = home.path(), .templateFolder = u":/templates"_s},
            clock) {
    plan.ID = "P1";
    plan.records = readings(12);
    loaded = store.load();
}

AppTest::~AppTest() { app.reset(); }

void AppTest::addPatient(const QString& ID, const QString& familyName) {
    PatientModel patient;
    patient.ID = ID;
    patient.FamilyName = familyName;
    patient.GivenNames = u"Kim"_s;
    ASSERT_TRUE(store.saveXMLPatient(patient));
    ASSERT_TRUE(store.loadXML());
}

AppController::Parts AppTest::parts() {
    const auto open = [this](const QString& path) {
        opened += path;
        return hasViewer;
    };
    return {store, session, *worker, panel, clock, chooser, period, printers, open};
}

void AppTest::launch() {
    worker.reset(); // of an earlier start
    device = std::make_unique<SimulatedMonitor>(plan, clock);
    port = std::make_unique<PluggedPort>(*device);
    port->plugged = startsPlugged;
    worker = std::make_unique<MonitorWorker>(*port, clock);
    using namespace std::chrono_literals;
    app = std::make_unique<AppController>(parts(), AppController::Timing{.polling = 1ms, .splash = 1ms});
    app->awakeFromNib(loaded);
    app->applicationDidFinishLaunching(loaded);
}

void AppTest::start() {
    launch();
    waitFor([this] { return !find<QWidget>("splash").isVisible(); });
    app->mainWndow().activateWindow();
}

void AppTest::startConnected() {
    start();
    waitFor([this] { return !panel.messages.empty() && !session.isBusy(); });
}

void AppTest::waitFor(const std::function<bool()>& condition) {
    ASSERT_TRUE(QTest::qWaitFor(condition, 20000));
}

void AppTest::click(const char* name) { QTest::mouseClick(&find<QWidget>(name), Qt::LeftButton); }

void AppTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused ? focused : &app->mainWndow(), key, modifiers);
}

void AppTest::download() {
    find<QLabel>("lblOutcome").clear();
    click("btnDataTransfer");
    waitFor([this] { return !text("lblOutcome").isEmpty(); });
}

QByteArray AppTest::dataFile() const {
    QFile file(store.getZELXMLPath());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void AppTest::replaceDataFile(const QByteArray& content) const {
    QFile file(store.getZELXMLPath());
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
    file.write(content);
}

/// One reading a day, all different.
std::vector<std::string> AppTest::readings(int total) {
    std::vector<std::string> records;
    for (int i = 0; i < total; ++i) {
        const auto time =
            u"2603%1%2"_s.arg(i % 28 + 1, 2, 10, QChar(u'0')).arg(700 + i / 28, 4, 10, QChar(u'0'));
        records.push_back(encode({.time = time, .sys = 120 + i % 20, .dia = 80, .pulse = 60}));
    }
    return records;
}

} // namespace zel
