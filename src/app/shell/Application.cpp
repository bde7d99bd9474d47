#include "app/shell/Application.h"

#include "app/shell/Demonstration.h"
#include "app/shell/FirstWindow.h"
#include "app/shell/GlobalVar.h"
#include "app/shell/TerminationSignals.h"
#include "app/widgets/OutlineStyle.h"
#include "app/widgets/Spoken.h"
#include "monitor/HidPort.h"
#include "monitor/SimulatedMonitor.h"
#include "store/LanguageChoice.h"
#include "store/Languages.h"
#include "store/SystemLog.h"
#include "store/ViewMemory.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QStyle>
#include <QTimer>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int failed = 1, wrongUsage = 2;

struct Options {
    bool simulatedMonitor = false;
    bool demonstration = false;
    QString planFile{};      ///< empty: the built-in monitor
    bool resetsView = false; ///< begins as at the first start
    const Language* language = nullptr;
};

int complain(int status, const QString& text) {
    std::fprintf(stderr, "zel: %s\n", qUtf8Printable(text));
    return status;
}

/// The option's value is optional, which the parser does not know: alone, the option is a flag.
tl::expected<Options, QString> parse(const QStringList& arguments) {
    constexpr auto option = "--simulated-monitor"_L1;
    Options options{.simulatedMonitor = arguments.contains(option)};
    QStringList withValue = arguments;
    withValue.removeAll(option);
    QCommandLineParser parser;
    const QString resetView = u"reset-view"_s;
    parser.addOption({option.mid(2).toString(), QString(), u"FILE"_s});
    parser.addOption({u"demonstration"_s, QString()});
    parser.addOption(QCommandLineOption(resetView));
    if (!parser.parse(withValue)) return tl::unexpected(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return tl::unexpected(qtTrId("argumentUnknown").arg(parser.positionalArguments().first()));
    options.resetsView = parser.isSet(resetView);
    if (parser.isSet(option.mid(2).toString())) {
        options.planFile = parser.value(option.mid(2).toString());
        if (options.planFile.isEmpty()) return tl::unexpected(qtTrId("argumentWithoutFile").arg(option));
        options.simulatedMonitor = true;
    }
    options.demonstration = parser.isSet(u"demonstration"_s);
    options.simulatedMonitor |= options.demonstration;
    return options;
}

bool hasDisplay() {
    constexpr std::array names{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(names, [](const char* name) { return !qEnvironmentVariableIsEmpty(name); });
}

/// What the thread that reads the data file lets go is used again by the others: at the first change of a
/// file of 34 MB, the most memory that the program ever has is 188 MB then, else 263 MB.
void shareFreedMemory() {
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
#endif
}

void name() {
    QCoreApplication::setApplicationName(u"zel"_s);
    QCoreApplication::setApplicationVersion(QLatin1String(ZEL_VERSION));
    QGuiApplication::setDesktopFileName(u"zel"_s);
}

/// Reads the arguments where no display is needed yet, so that a mistake in them is told anywhere.
tl::expected<Options, int> prepare(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const LanguageOption given = takeLanguageOption(QCoreApplication::arguments());
    // One that cannot be read is told once the window is there.
    const QString chosen = chosenLanguage(qEnvironmentVariable("HOME")).value_or(QString());
    const Language& language = languageOfRun(given, chosen, QProcessEnvironment::systemEnvironment());
    const ProgramTexts texts(language);
    if (const QString problem = languageProblem(given); !problem.isEmpty())
        return tl::unexpected(complain(wrongUsage, problem));
    auto options = parse(given.words);
    if (!options) return tl::unexpected(complain(wrongUsage, options.error()));
    if (QDir::isRelativePath(qEnvironmentVariable("HOME")))
        return tl::unexpected(complain(failed, qtTrId("noHome")));
    if (!hasDisplay()) return tl::unexpected(complain(failed, qtTrId("noDisplay")));
    options->language = &language;
    return *options;
}

/// A demonstration takes no measured readings among its invented ones, however it was opened.
tl::expected<std::unique_ptr<MonitorPort>, QString> makePort(const Options& options, bool isDemonstration,
                                                             const Clock& clock) {
    if (options.simulatedMonitor || isDemonstration) return makeSimulatedMonitor(options.planFile, clock);
    return std::make_unique<HidPort>();
}

constexpr std::chrono::milliseconds longestCall{2500};

/// \return how the program ends, if it is not to go on
std::optional<int> giveWayToFirst(FirstWindow& window, const QVariantMap& token, bool resetsView) {
    const FirstWindow::Outcome outcome = window.claim(token, longestCall);
    if (outcome == FirstWindow::Outcome::shown)
        return resetsView ? complain(failed, qtTrId("windowNotReset")) : complain(0, qtTrId("windowShown"));
    if (outcome != FirstWindow::Outcome::silent) return std::nullopt;
    // Both can be used side by side: each change is merged into the file.
    if (MessageBoxPanel{}.AskMessage(qtTrId("windowSilent"), qtTrId("AP_Title"))) return std::nullopt;
    return failed;
}

void forgetView(const StorePaths& paths, const QString& dataFile) {
    const QString file = viewMemoryFile(paths.home, dataFile);
    if (!ViewMemory(file).forget()) complain(failed, qtTrId("windowNotForgotten").arg(file));
}

} // namespace

int runApplication(int argc, char** argv) {
    name();
    shareFreedMemory();
    installSystemLog();
    const auto options = prepare(argc, argv);
    if (!options) return options.error();

    const QVariantMap token = desktopToken();
    TerminationSignals termination;
    QApplication application(argc, argv);
    QAccessible::installFactory(makeSpoken);
    termination.watch();
    QApplication::setQuitOnLastWindowClosed(false);
    if (QApplication::style()->name() == "fusion"_L1) QApplication::setStyle(new OutlineStyle);
    QApplication::setWindowIcon(QIcon(u":/icons/zel.svg"_s));
    const ProgramTexts texts(*options->language);
    SystemClock clock;

    const QString person = qEnvironmentVariable("HOME");
    const tl::expected<QString, QString> home = options->demonstration ? demonstrationHome(person) : person;
    if (!home) return complain(failed, home.error());
    const StorePaths own{.home = *home,
                         .applicationFolder = QCoreApplication::applicationDirPath(),
                         .templateFolder = u":/templates"_s};
    const StorePaths paths = options->demonstration ? demonstrationPaths(own) : own;
    const DataFile file(paths, clock);
    auto port = makePort(*options, file.isDemonstration(), clock);
    if (!port) return complain(failed, port.error());
    const QString dataFile = file.getZELXMLPath();
    FirstWindow firstWindow(runningSessionBus(), dataFile);
    const auto leave = QObject::connect(&termination, &TerminationSignals::terminated, &application,
                                        [] { QCoreApplication::exit(0); });
    if (const auto status = giveWayToFirst(firstWindow, token, options->resetsView)) return *status;
    QObject::disconnect(leave);
    if (options->resetsView) forgetView(paths, dataFile);

    const AppController::Demonstration another{.start = [person] { return startDemonstration(person); }};
    GlobalVar global(paths, std::move(*port), clock, {},
                     file.isDemonstration() ? AppController::Demonstration{.isOn = true} : another, person);
    AppController& controller = global.appController;
    QObject::connect(&controller, &AppController::closed, &application, [] { QCoreApplication::exit(0); });
    QObject::connect(&termination, &TerminationSignals::terminated, &controller, &AppController::terminate);
    QObject::connect(&firstWindow, &FirstWindow::wanted, &controller, &AppController::bringToFront);
    // Inside the event loop, so that a quit also ends it while one of their messages is open.
    QTimer::singleShot(0, &controller, [&] {
        controller.awakeFromNib(global.loaded);
        controller.applicationDidFinishLaunching(global.loaded);
    });
    const int status = QApplication::exec();
    // A thread that a blocking device holds cannot be joined. Everything is saved: nothing is left to be
    // done.
    if (!global.monitor.stop()) std::_Exit(status);
    return status;
}

} // namespace zel
