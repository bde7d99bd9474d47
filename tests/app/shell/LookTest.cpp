// Every window in dark and high-contrast colours, chosen while it is open, and on screens of several sizes.
// ZEL_LOOK_PICTURES=FOLDER has them painted into a folder.
#include "AppTest.h"
#include "CutTexts.h"
#include "app/shell/WindowPlacement.h"
#include "app/widgets/OutlineStyle.h"
#include "chart/ScreenColours.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTimer>

#include <unordered_map>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QPalette paletteOf(const QColor& text, const QColor& window, const QColor& base, const QColor& button,
                   const QColor& highlight, const QColor& highlighted) {
    QPalette made(button, window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        made.setColor(role, text);
    made.setColor(QPalette::Base, base);
    made.setColor(QPalette::AlternateBase, window);
    made.setColor(QPalette::Highlight, highlight);
    made.setColor(QPalette::HighlightedText, highlighted);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        made.setColor(QPalette::Disabled, role, Qt::gray);
    return made;
}

struct Desktop {
    QString name;
    QPalette palette;
    bool isDark;
};

std::vector<Desktop> desktops() {
    const QColor pale(252, 252, 252);
    return {
        {u"light"_s, QApplication::palette(), false},
        {u"dark"_s, paletteOf(pale, {42, 46, 50}, {27, 30, 32}, {49, 54, 59}, {30, 100, 160}, pale), true},
        {u"strong-dark"_s, paletteOf(Qt::white, Qt::black, Qt::black, Qt::black, Qt::cyan, Qt::black), true},
        {u"strong-light"_s, paletteOf(Qt::black, Qt::white, Qt::white, Qt::white, Qt::darkBlue, Qt::white),
         false}};
}

/// What most of a picture is made of.
QColor groundOf(const QImage& image) {
    std::unordered_map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    return QColor(std::ranges::max_element(counts, {}, [](const auto& one) { return one.second; })->first);
}

double bestContrast(const QImage& image, const QColor& ground) {
    double best = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            best = std::max(best, contrast(ground, image.pixelColor(x, y)));
    return best;
}

QString wordsOf(const QWidget& one) {
    if (const auto* label = qobject_cast<const QLabel*>(&one)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&one)) return button->text();
    if (const auto* list = qobject_cast<const QComboBox*>(&one)) return list->currentText();
    if (const auto* line = qobject_cast<const QLineEdit*>(&one))
        return line->displayText() + line->placeholderText();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&one))
        return text->toPlainText() + text->placeholderText();
    if (const auto* header = qobject_cast<const QHeaderView*>(&one))
        return header->orientation() == Qt::Horizontal ? u"titles"_s : QString();
    if (const auto* table = qobject_cast<const QTableView*>(&one))
        return table->model()->rowCount() > 0 ? u"rows"_s : QString();
    return one.objectName().endsWith("View"_L1) && one.focusPolicy() != Qt::NoFocus ? u"picture"_s
                                                                                    : QString();
}

class LookTest : public AppTest {
protected:
    LookTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Brown"_s);
        printers.known = {u"Office"_s};
        QApplication::setStyle(new OutlineStyle);
    }
    ~LookTest() override {
        QApplication::setStyle(u"fusion"_s);
        QApplication::setPalette(usualPalette);
        QApplication::setFont(usualFont);
    }
    void openIn(QSize size) {
        startConnected();
        download();
        app->mainWndow().setWindowState(Qt::WindowNoState);
        app->mainWndow().setMinimumSize(leastSize(size));
        app->mainWndow().resize(size);
        settle();
    }
    static void settle() {
        for (int i = 0; i < 5; ++i) // a layout that changes others needs its turns
            QCoreApplication::processEvents();
    }
    static void keep(QWidget& window, const QString& name) {
        const QString folder = qEnvironmentVariable("ZEL_LOOK_PICTURES");
        if (folder.isEmpty()) return;
        EXPECT_TRUE(window.grab().save(folder + u'/' + name + u".png"_s));
    }
    /// Each page and each dialog, once it has settled.
    void walk(const std::function<void(QWidget&, const QString&)>& look) {
        for (const char* button :
             {"patientBtn", "tableBtn", "graphBtn", "toggleHistogram", "toggleCorrelation", "toggleTrend"}) {
            click(button);
            settle();
            look(app->mainWndow(), QString::fromLatin1(button));
        }
        click("toggleGraph");
        for (const auto& show :
             {&AppController::showSetting, &AppController::showPrint, &AppController::showBackups}) {
            ((*app).*show)();
            settle();
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            look(*dialog, dialog->objectName());
            dialog->reject();
        }
        click("tableBtn");
        QTimer::singleShot(0, &app->mainWndow(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            settle();
            look(*dialog, dialog->objectName());
            dialog->reject();
        });
        find<QAction>("newReading").trigger();
    }

    const QPalette usualPalette = QApplication::palette();
    const QFont usualFont = QApplication::font();
};

/// As painted: the words of each control stand out from what lies behind them.
void expectReadable(QWidget& window, bool isDark) {
    const QImage painted = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (const QWidget* one : window.findChildren<QWidget*>()) {
        if (!one->isVisible() || !one->isEnabled() || one->window() != &window || wordsOf(*one).isEmpty())
            continue;
        if (one->objectName().startsWith(u"qt_"_s)) continue;
        const QRect seen = one->visibleRegion()
                               .boundingRect()
                               .adjusted(3, 3, -3, -3)
                               .translated(one->mapTo(&window, QPoint()));
        if (seen.width() < 8 || seen.height() < 8) continue;
        const QImage part = painted.copy(seen);
        const QColor ground = groundOf(part);
        SCOPED_TRACE(qPrintable(one->objectName() + u": "_s + wordsOf(*one)));
        EXPECT_GE(bestContrast(part, ground), readable) << qPrintable(ground.name());
        const auto* button = qobject_cast<const QAbstractButton*>(one);
        const bool hasOwnColour = button && (button->isChecked() || !button->icon().isNull());
        if (one->objectName() != "previewView"_L1 && !hasOwnColour) {
            EXPECT_EQ(contrast(ground, Qt::white) > contrast(ground, Qt::black), isDark)
                << qPrintable(ground.name());
        }
    }
}

/// Of each field: its frame, to what it stands on.
void expectOutlined(QWidget& window) {
    const QImage painted = window.grab().toImage();
    for (const QLineEdit* field : window.findChildren<QLineEdit*>()) {
        const bool isInOther = qobject_cast<const QAbstractSpinBox*>(field->parentWidget());
        if (!field->isVisible() || !field->isEnabled() || !field->hasFrame() || isInOther) continue;
        const QRect at(field->mapTo(&window, QPoint()), field->size());
        const QImage edge = painted.copy(at.left(), at.center().y(), 2, 1);
        EXPECT_GE(bestContrast(edge, painted.pixelColor(at.left() - 2, at.center().y())), 3)
            << qPrintable(field->objectName());
    }
}

} // namespace

TEST_F(LookTest, aFieldsFrameIsSeenOnBlack) {
    openIn({1366, 745});
    QApplication::setPalette(desktops()[2].palette);
    click("patientBtn");
    settle();
    keep(app->mainWndow(), u"outlined"_s);
    expectOutlined(app->mainWndow());
}

TEST_F(LookTest, everyWindowFollowsTheDesktopsColoursAndCanBeRead) {
    openIn({1366, 745});
    const auto charts = [this] {
        click("graphBtn");
        app->mainWndow().setFocus();
        settle();
        return page("DrawGraphicVC").grab().toImage();
    };
    const QImage before = charts();
    for (const Desktop& desktop : desktops()) {
        SCOPED_TRACE(qPrintable(desktop.name));
        QApplication::setPalette(desktop.palette);
        walk([&](QWidget& window, const QString& name) {
            SCOPED_TRACE(qPrintable(name));
            keep(window, name + u'-' + desktop.name);
            expectReadable(window, desktop.isDark);
        });
    }
    QApplication::setPalette(usualPalette);
    EXPECT_TRUE(before == charts()) << "as it was, to the last pixel";
}

TEST_F(LookTest, paperStaysWhiteAndWhatIsAroundItDoesNot) {
    openIn({1366, 745});
    QApplication::setPalette(desktops()[1].palette);
    app->showPrint();
    settle();
    const QImage preview = page("previewView").grab().toImage();
    EXPECT_EQ(groundOf(preview.copy(QRect(preview.rect().center() - QPoint(60, 60), QSize(120, 120)))),
              QColor(Qt::white));
    EXPECT_LT(preview.pixelColor(3, 3).lightness(), 100);
    find<QDialog>("PrintController").reject();
}

TEST_F(LookTest, nothingIsCutOnSmallAndLargeScreensAndAtTwiceTheSize) {
    struct Screen {
        const char* name;
        QSize size;
        double type;
    };
    for (const Screen& screen : {Screen{"640", {640, 457}, 1}, Screen{"1366", {1366, 745}, 1},
                                 Screen{"1920", {1920, 1057}, 1}, Screen{"1920-twice", {1920, 1057}, 2}}) {
        SCOPED_TRACE(screen.name);
        QFont font = usualFont;
        font.setPointSizeF(usualFont.pointSizeF() * screen.type);
        QApplication::setFont(font);
        openIn(screen.size);
        walk([&](QWidget& window, const QString& name) {
            SCOPED_TRACE(qPrintable(name));
            keep(window, name + u'-' + QString::fromLatin1(screen.name));
            expectNothingCut(window);
        });
        app.reset();
    }
}

} // namespace zel
