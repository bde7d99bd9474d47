// What a user does in the main window, over 100,000 readings of one patient and 2,000 patients: from the key
// or the mouse until the window has been painted. Each row is the slowest of 200 such steps, 20 for a first
// visit, in processor time: nothing of them waits.

#include "Figure.h"
#include "LongHistory.h"
#include "app/shell/GlobalVar.h"
#include "app/widgets/OutlineStyle.h"
#include "monitor/HidPort.h"
#include "store/AtomicFile.h"
#include "store/Languages.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace zel;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

constexpr double aFrame = 16; ///< milliseconds

/// Each of which a step has to paint.
using Shown = std::vector<QWidget*>;

StorePaths pathsIn(const QString& home) {
    return {.home = home, .applicationFolder = home, .templateFolder = u":/templates"_s};
}

/// What is painted, so that no step is measured that does not show what it is for.
class Paints final : public QObject {
public:
    explicit Paints(bool small) : isSmall(small) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            painted.emplace_back(static_cast<QWidget*>(watched));
        return false;
    }
    void beginAnew() { painted.clear(); }
    /// The widget or a part of it.
    [[nodiscard]] bool have(const QWidget& shown) const {
        return std::ranges::any_of(painted, [&shown](const QPointer<QWidget>& widget) {
            return widget && (widget == &shown || shown.isAncestorOf(widget));
        });
    }
    bool isSmall;

private:
    std::vector<QPointer<QWidget>> painted; ///< a step may delete some
};

/// The whole program over a made data file, without its own process.
class Window {
public:
    Window(int patients, int readings) {
        SystemClock real;
        const QString file = DataFile(pathsIn(home.path()), real).getZELXMLPath();
        QDir{}.mkpath(QFileInfo{file}.path());
        if (!replaceFile(file, makeLongHistory(patients, readings))) std::abort();
        using namespace std::chrono_literals;
        program =
            std::make_unique<GlobalVar>(pathsIn(home.path()), std::make_unique<HidPort>(), clock,
                                        AppController::Timing{.polling = 1h, .splash = 1ms, .watching = 1h});
        if (!program->loaded) std::abort();
        program->appController.awakeFromNib(program->loaded);
        program->appController.applicationDidFinishLaunching(program->loaded);
        program->appController.mainWndow().resize(1400, 900);
        program->store.setCurrentID(u"P00000"_s);
        settle();
    }

    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents(); // what the first round posted
    }
    template <class W = QWidget>
    W& find(const char* name, const QString& page = u"mainWndow"_s) {
        QWidget& window = program->appController.mainWndow();
        auto* parent = page == window.objectName() ? &window : window.findChild<QWidget*>(page);
        auto* widget = parent->findChild<W*>(QLatin1StringView(name));
        if (!widget) qFatal("no widget %s", name);
        return *widget;
    }
    QWidget& rowsOf(const char* table) { return *find<QAbstractScrollArea>(table).viewport(); }
    Shown charts() { return {&find("BloodView"), &find("PulseView")}; }
    void showPeriod(int days) {
        const Instant end = program->period.getDataPeriod().end;
        program->period.setTimePeriod(end - std::chrono::days{days}, end);
        settle();
    }
    void chooseAnew() {
        program->store.setCurrentID(u"P00001"_s);
        program->store.setCurrentID(u"P00000"_s);
        showPeriod(daysOfData());
    }
    [[nodiscard]] int daysOfData() const {
        return static_cast<int>(
            DayDiff(program->period.getDataPeriod().begin, program->period.getDataPeriod().end));
    }

private:
    QTemporaryDir home;
    SystemClock clock;
    std::unique_ptr<GlobalVar> program;
};

void mouse(QWidget& to, QEvent::Type type, QPoint where, Qt::MouseButtons held) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, where, to.mapToGlobal(where), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&to, &event);
}

void click(QWidget& button) {
    const QPoint where(8, button.height() / 2);
    mouse(button, QEvent::MouseButtonPress, where, Qt::LeftButton);
    mouse(button, QEvent::MouseButtonRelease, where, Qt::NoButton);
}

void press(QWidget& to, int key, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&to, &event);
    }
}

/// Each of 200 steps is done in three rounds, and its best one counts, which leaves out what else the
/// computer does, but not what the step itself takes. The rounds begin alike.
void measure(
    const std::string& what, Paints& paints, const std::function<void(int)>& step,
    const std::function<Shown(int)>& shown, const std::function<void()>& prepare = [] {}, int most = 200) {
    constexpr int rounds = 3;
    const int steps = paints.isSmall ? 10 : most;
    std::vector<double> best(static_cast<std::size_t>(steps), 1e9);
    for (int round = 0; round < rounds; ++round) {
        for (int number = 0; number < steps; ++number) {
            prepare(); // is not measured
            paints.beginAnew();
            const double taken = processorSeconds([&] {
                step(number);
                Window::settle();
            });
            best[static_cast<std::size_t>(number)] = std::min(best[static_cast<std::size_t>(number)], taken);
            for (const QWidget* widget : shown(number))
                if (!paints.have(*widget))
                    qFatal("%s: step %d does not paint %s", what.c_str(), number,
                           qUtf8Printable(widget->objectName()));
        }
    }
    const double slowest = std::ranges::max(best);
    print({.what = what, .unit = "ms", .ours = 1000 * slowest, .against = {}, .target = aFrame});
}

/// Where every step shows the same.
std::function<Shown(int)> always(const Shown& shown) {
    return [shown](int) { return shown; };
}

void measureSearch(Window& window, Paints& paints) {
    auto& field = window.find("searchPatients");
    const QString typed = u"1999\b\b\b\bx\b"_s;
    const auto type = [&](int number) {
        const QChar key = typed[number % typed.size()];
        if (key == u'\b') return press(field, Qt::Key_Backspace, {});
        press(field, key.toUpper().unicode(), key);
    };
    // The list, or what is said in its place.
    measure("A key in the search", paints, type, always({&field, window.find("tblPatients").parentWidget()}));
}

void measurePages(Window& window, Paints& paints) {
    constexpr std::array tabs{"graphBtn", "tableBtn", "patientBtn"};
    const std::array pages{window.charts(), Shown{&window.rowsOf("tblReadings")},
                           Shown{&window.rowsOf("tblPatients")}};
    const auto switchPage = [&](int number) {
        click(window.find(tabs.at(static_cast<std::size_t>(number) % 3)));
    };
    for (const bool all : {false, true}) {
        window.showPeriod(all ? window.daysOfData() : 90);
        measure(all ? "A page switch, all days in view" : "A page switch, 90 days in view", paints,
                switchPage, [&](int number) { return pages.at(static_cast<std::size_t>(number) % 3); });
        click(window.find("patientBtn"));
    }
}

/// Behind the choice of a patient a page reads all readings that it shows.
void measureFirstVisits(Window& window, Paints& paints) {
    for (const auto& [tab, page] : {std::pair{"graphBtn", "chart"}, {"tableBtn", "table"}}) {
        const auto visit = [&window, tab = tab](int) { click(window.find(tab)); };
        const auto choose = [&window] {
            click(window.find("patientBtn"));
            window.chooseAnew();
        };
        const bool isChart = page == "chart"sv;
        measure(std::string("A first visit of the ") + page + ", all days in view", paints, visit,
                always(isChart ? window.charts() : Shown{&window.rowsOf("tblReadings")}), choose, 20);
    }
    click(window.find("patientBtn"));
}

void measurePeriods(Window& window, Paints& paints, const QString& page, const std::string& where,
                    const Shown& shown) {
    constexpr std::array choices{"viewAll", "viewLast30", "viewAll", "viewWeek", "viewLast90", "viewLast7"};
    const auto choose = [&](int number) {
        click(window.find(choices.at(static_cast<std::size_t>(number) % choices.size()), page));
    };
    measure("A period change, " + where, paints, choose, always(shown));
}

void measureViews(Window& window, Paints& paints) {
    const QString page = u"GraphViewController"_s;
    constexpr std::array views{"toggleHistogram", "toggleCorrelation", "toggleTrend"};
    constexpr std::array names{"histogram", "correlation", "trend"};
    constexpr std::array pictures{"HistogramView", "CorrelationView", "TrendView"};
    for (std::size_t view = 0; view < views.size(); ++view) {
        click(window.find(views.at(view), page));
        measurePeriods(window, paints, page, names.at(view), {&window.find(pictures.at(view))});
    }
    click(window.find("toggleGraph", page));
}

void measureHover(Window& window, Paints& paints) {
    window.showPeriod(window.daysOfData());
    auto& chart = window.find("BloodView");
    const auto hover = [&](int number) {
        mouse(chart, QEvent::MouseMove,
              {100 + number * 37 % (chart.width() - 150), chart.height() / 2 + number % 9}, Qt::NoButton);
    };
    measure("A hover, all days in view", paints, hover, always({&chart}));
}

/// Back and forth between the halves, so that each step goes elsewhere.
int swing(int number, int range) {
    return number % 2 == 0 ? number * range / 400 : range - number * range / 400;
}

void measureDrags(Window& window, Paints& paints) {
    window.showPeriod(window.daysOfData());
    const auto drag = [&](const char* name, const std::string& what, const Shown& shown) {
        auto& bar = window.find<QScrollBar>(name);
        bar.setSliderDown(true);
        measure(
            what, paints, [&](int number) { bar.setSliderPosition(swing(number, bar.maximum())); },
            always(shown));
        bar.setSliderDown(false);
    };
    drag("bloodScroller", "A drag of the pressure scale, all days in view", {&window.find("BloodView")});
    window.showPeriod(window.daysOfData() / 2);
    drag("timeScroller", "A drag along time, half of all days in view", window.charts());
    window.showPeriod(90);
    drag("timeScroller", "A drag along time, 90 days in view", window.charts());
}

void measureComment(Window& window, Paints& paints) {
    window.showPeriod(40);
    auto& chart = window.find("PulseView");
    // The last comment begins 30 days before the end, and lasts three.
    const int right = chart.width() - 1, strip = chart.height() - 22;
    const auto at = [&](double days) {
        return QPoint(right - static_cast<int>((right - 40) * days / 41), strip);
    };
    mouse(chart, QEvent::MouseMove, at(28), Qt::NoButton);
    for (double days = 26; days < 32; days += 0.1) { // until an edge is held
        mouse(chart, QEvent::MouseMove, at(days), Qt::NoButton);
        if (chart.cursor().shape() != Qt::SizeHorCursor) continue;
        mouse(chart, QEvent::MouseButtonPress, at(days), Qt::LeftButton);
        const auto drag = [&](int number) {
            mouse(chart, QEvent::MouseMove, at(22 + number * 7 % 17), Qt::LeftButton);
        };
        return measure("A drag of a comment's edge", paints, drag, always({&chart}));
    }
    qFatal("no comment to drag");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "zel.*=false");
    const QApplication application{argc, argv};
    QApplication::setStyle(new OutlineStyle);
    const ProgramTexts texts(english());
    const bool small = isSmall(argc, argv);
    Window window(2000, small ? 20'000 : 100'000);
    Paints paints(small);
    measureSearch(window, paints);
    measurePages(window, paints);
    measureFirstVisits(window, paints);
    click(window.find("tableBtn"));
    measurePeriods(window, paints, u"TableViewController"_s, "table", {&window.rowsOf("tblReadings")});
    click(window.find("graphBtn"));
    measurePeriods(window, paints, u"GraphViewController"_s, "charts", window.charts());
    measureViews(window, paints);
    measureHover(window, paints);
    measureDrags(window, paints);
    measureComment(window, paints);
    return 0;
}
