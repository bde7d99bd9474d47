// Every window in dark and high-contrast colours, chosen while it is open, and on screens of several sizes.
// ZEL_LOOK_PICTURES=FOLDER has them painted into a folder.
#include "AppTest.h"
#include "CutTexts.h"
#include "ReadableTexts.h"
#include "app/settings/ImportFileDialog.h"
#include "app/settings/XmlFileList.h"
#include "app/shell/WindowPlacement.h"
#include "app/widgets/MessageBoxPanel.h"
#include "app/widgets/OutlineStyle.h"
#include "chart/ScreenColours.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>

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
        lookAtLists(look);
        lookAtQuestions(look);
        lookAtMenu(look);
    }
    void lookAtMenu(const std::function<void(QWidget&, const QString&)>& look) {
        auto& menu = find<QMenu>("viewMenu");
        menu.popup(window().mapToGlobal(QPoint(60, 60)));
        menu.setActiveAction(&find<QAction>("patientBtnEntry"));
        settle();
        look(menu, menu.objectName());
        menu.close();
    }
    /// The dialogs that hold a table or a text, which is never empty here.
    void lookAtLists(const std::function<void(QWidget&, const QString&)>& look) {
        hasViewer = false;
        for (const auto& [action, name] : {std::pair("showKeys", "KeysDialog"),
                                           {"showDownloads", "DownloadsDialog"},
                                           {"showHelp", "HelpWindow"}}) {
            find<QAction>(action).trigger();
            settle();
            auto& dialog = find<QDialog>(name);
            look(dialog, QString::fromLatin1(name));
            dialog.reject();
            settle();
        }
        const auto files = importList();
        files->show();
        settle();
        look(*files, files->objectName());
    }
    /// One file that can be imported, and one that cannot.
    std::unique_ptr<ImportFileDialog> importList() {
        const QString damaged = home.filePath(u"damaged.xml"_s);
        EXPECT_TRUE(QFile(damaged).open(QFile::WriteOnly));
        auto made = std::make_unique<ImportFileDialog>(
            chooser, home.path(),
            ImportContext{.files = {store.getZELXMLPath(), damaged}, .remark = u"Only XML files"_s},
            &app->mainWndow());
        const auto& list = *made->findChild<XmlFileList*>();
        waitFor([&] { return !list.isReading(); });
        return made;
    }
    /// What waits until it is answered.
    void lookAtQuestions(const std::function<void(QWidget&, const QString&)>& look) {
        click("tableBtn");
        find<QTableView>("tblReadings").selectRow(0);
        for (const char* action : {"newReadingEntry", "leaveOutReadingsEntry"}) {
            ASSERT_TRUE(find<QAction>(action).isEnabled()) << action;
            lookOnceOpen(look);
            find<QAction>(action).trigger();
        }
        MessageBoxPanel boxes;
        boxes.setWindow(&app->mainWndow());
        lookOnceOpen(look);
        boxes.ShowMessage(u"One word or two"_s, u"Title"_s);
    }
    void lookOnceOpen(const std::function<void(QWidget&, const QString&)>& look) {
        QTimer::singleShot(0, &app->mainWndow(), [&look] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            settle();
            look(*dialog, dialog->objectName());
            dialog->reject();
        });
    }

    const QPalette usualPalette = QApplication::palette();
    const QFont usualFont = QApplication::font();
};

void expectReadable(QWidget& window, bool isDark) {
    EXPECT_EQ(unreadableIn(window, isDark).join(u'\n').toStdString(), "");
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

TEST_F(LookTest, theFirstStepsCanBeReadBelowTheMonitorsBar) {
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s) && store.deleteXMLPatient(u"P2"_s) && store.loadXML());
    demonstration = {.isOn = true, .start = [] { return QString(); }};
    startConnected();
    ASSERT_TRUE(page("firstSteps").isVisible() && page("monitorBar").isVisible());
    for (const Desktop& desktop : desktops()) {
        SCOPED_TRACE(qPrintable(desktop.name));
        QApplication::setPalette(desktop.palette);
        settle();
        keep(app->mainWndow(), u"firstSteps-"_s + desktop.name);
        expectReadable(app->mainWndow(), desktop.isDark);
    }
    page("lblFirstMonitor")
        .setPalette(QPalette(Qt::gray, Qt::gray, Qt::gray, Qt::gray, Qt::gray, Qt::gray, Qt::gray));
    EXPECT_TRUE(unreadableIn(app->mainWndow(), false).join(u'\n').contains(u"lblFirstMonitor"_s));
}

/// One grey cell among many, and one grey title.
TEST_F(LookTest, whatCannotBeReadIsFoundInATable) {
    openIn({1366, 745});
    const QColor grey(170, 170, 170);
    for (const auto& [action, name] : {std::pair("showKeys", "tblKeys"), {"showDownloads", "tblDownloads"}}) {
        find<QAction>(action).trigger();
        settle();
        auto& table = find<QTableWidget>(name);
        EXPECT_TRUE(unreadableIn(*table.window(), false).isEmpty()) << name;
        const int last = std::min(table.rowCount() - 1, 3);
        table.item(last, 1)->setForeground(grey);
        table.clearSelection();
        table.horizontalHeaderItem(1)->setForeground(grey);
        settle();
        EXPECT_EQ(unreadableIn(*table.window(), false).size(), 2) << name;
        qobject_cast<QDialog*>(table.window())->reject();
    }
    const auto files = importList();
    files->show();
    auto& table = *files->findChild<QTableView*>(u"tblFiles"_s);
    table.clearSelection();
    settle();
    EXPECT_TRUE(unreadableIn(*files, false).isEmpty());
    QPalette faint = table.palette();
    faint.setColor(QPalette::Text, grey);
    table.setPalette(faint);
    settle();
    EXPECT_GE(unreadableIn(*files, false).size(), 4) << "names, numbers and why one cannot be imported";
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
