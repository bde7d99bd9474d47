#pragma once

#include "app/AppController.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>

namespace zel {

/// Answers questions as it was told and keeps what was said, as "title: text".
class ScriptedPanel final : public MessagePanel {
public:
    void ShowMessage(const QString& text, const QString& title) override;
    bool AskMessage(const QString& text, const QString& title) override;

    QStringList messages;
    QStringList questions;        ///< titles only
    QHash<QString, bool> answers; ///< by title; yes when not told
    std::function<void()> whenAsked = [] {};
    std::function<void()> whenShown = [] {};
};

/// Picks the folder and the files that it was told, and keeps what it was asked for.
class ScriptedChooser final : public FileChooser {
public:
    QString chooseFolder(QWidget* owner, const QString& title) override;
    QStringList chooseFiles(QWidget* owner) override;
    QString choosePdf(QWidget* owner, const QString& title, const QString& name) override;

    QString folder;
    QStringList files;
    QString pdf;
    QStringList asked; ///< titles; "files" for files, the proposed name for a PDF
};

/// Printers that the test names, and what was printed on them, as "printer: section".
class ScriptedPrinters final : public Printers {
public:
    QStringList names() const override { return known; }
    QString defaultName() const override { return known.value(0); }
    QPageSize paper(const QString&) const override { return QPageSize(QPageSize::A4); }
    PrintResult print(const QString& printer, const PrintView& view, Section section) override;

    QStringList known;
    QStringList printed;
};

/// A clock whose sleeps take no time, or that stands still, so that no deadline is ever reached.
class TestClock final : public Clock {
public:
    [[nodiscard]] WallTime now() const override { return manual.now(); }
    void sleep(std::chrono::microseconds duration) override;
    std::atomic<bool> stands = false;

private:
    ManualClock manual;
};

/// A monitor that can be plugged in and pulled out.
class PluggedPort final : public MonitorPort {
public:
    explicit PluggedPort(MonitorPort& monitor) : device(monitor) {}
    PortOpen open() override;
    bool isOpen() const override { return device.isOpen(); }
    bool disconnected() const override { return !plugged || device.disconnected(); }
    bool write(std::span<const std::uint8_t> report) override { return plugged && device.write(report); }
    int read(std::span<std::uint8_t> report) override { return plugged ? device.read(report) : -1; }
    std::atomic<bool> plugged = true;
    std::atomic<bool> denied = false;
    std::atomic<int> opened = 0;

private:
    MonitorPort& device;
};

/// The whole program over a home of its own, driven like a user does.
class AppTest : public testing::Test {
protected:
    AppTest();
    ~AppTest() override;

    void addPatient(const QString& ID, const QString& familyName);
    AppController::Parts parts(); ///< once there is a worker
    /// Starts the program.
    void launch();
    /// Starts the program and waits until the splash screen has gone.
    void start();
    /// Starts it and waits until the monitor's ID has been announced.
    void startConnected();
    void waitFor(const std::function<bool()>& condition);
    template <class W>
    W& find(const char* name) {
        auto* widget = app->mainWndow().findChild<W*>(QLatin1String(name));
        if (!widget) qFatal("no widget %s", name);
        return *widget;
    }
    void click(const char* name);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QWidget& page(const char* name) { return find<QWidget>(name); }
    QString text(const char* name) { return find<QLabel>(name).text(); }
    void download();
    QByteArray dataFile() const;
    void replaceDataFile(const QByteArray& content) const;
    static std::vector<std::string> readings(int total);

    QTemporaryDir home;
    TestClock clock;
    SimulatedMonitorPlan plan;
    ScriptedPanel panel;
    ScriptedChooser chooser;
    ScriptedPrinters printers;
    QStringList opened; ///< documents that were handed to the desktop
    bool hasViewer = true;
    DataStore store;
    DisplayPeriod period{std::chrono::floor<std::chrono::milliseconds>(clock.now())};
    MonitorSession session;
    std::unique_ptr<SimulatedMonitor> device;
    std::unique_ptr<PluggedPort> port;
    std::unique_ptr<MonitorWorker> worker;
    std::unique_ptr<AppController> app;
    bool startsPlugged = true;
    StoreResult loaded;
};

} // namespace zel
