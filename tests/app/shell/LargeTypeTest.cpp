#include "AppTest.h"
#include "CutTexts.h"
#include "app/shell/WindowPlacement.h"
#include "app/widgets/ScreenFit.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// How large a window is in the pixels of its type: a small screen of 1366 x 768 at 175 %.
struct Room {
    const char* what;
    double type; ///< times the usual size
    QSize size;
};
constexpr Room rooms[]{{"the desktop enlarges all", 1, {780, 426}}, {"large type alone", 1.75, {1366, 745}}};

/// The program with readings and a comment, in a room of the test's choice.
class LargeTypeTest : public AppTest {
protected:
    LargeTypeTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        printers.known = {u"Office"_s};
    }
    ~LargeTypeTest() override { QApplication::setFont(usual); }

    void openIn(const Room& room) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * room.type);
        QApplication::setFont(font);
        startConnected();
        download();
        app->mainWndow().setWindowState(Qt::WindowNoState);
        app->mainWndow().setMinimumSize(leastSize(room.size));
        app->mainWndow().resize(room.size);
        settle();
        ASSERT_EQ(app->mainWndow().size(), room.size);
    }
    static void settle() {
        for (int i = 0; i < 5; ++i) // a layout that changes others needs its turns
            QCoreApplication::processEvents();
    }

    const QFont usual = QApplication::font();
};

} // namespace

TEST_F(LargeTypeTest, nothingIsCutOnASmallScreen) {
    for (const Room& room : rooms) {
        SCOPED_TRACE(room.what);
        openIn(room);
        for (const char* button :
             {"patientBtn", "tableBtn", "graphBtn", "toggleHistogram", "toggleCorrelation", "toggleTrend"}) {
            SCOPED_TRACE(button);
            click(button);
            settle();
            expectNothingCut(app->mainWndow());
            const auto& body = find<QScrollArea>("bodyScroll");
            EXPECT_EQ(body.verticalScrollBar()->maximum(), 0);
            EXPECT_EQ(body.horizontalScrollBar()->maximum(), 0);
        }
        app->showPrint();
        app->showSetting();
        for (const char* name : {"PrintController", "SettingController"}) {
            SCOPED_TRACE(name);
            auto& dialog = find<QDialog>(name);
            settle();
            expectNothingCut(dialog);
            EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
            EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
            dialog.reject();
        }
    }
}

TEST_F(LargeTypeTest, dialogsGiveWayToASmallScreenAndKeepTheirButtons) {
    openIn(rooms[1]);
    const QSize room = roomWithin({800, 480});
    struct Opened {
        const char *action, *dialog, *button;
    };
    for (const auto& [action, name, button] : {Opened{"showBackups", "BackupDialog", "btnCloseBackups"},
                                               {"showDownloads", "DownloadsDialog", "btnCloseDownloads"},
                                               {"showKeys", "KeysDialog", "btnCloseKeys"},
                                               {"showSetting", "SettingController", "cancelButton"}}) {
        SCOPED_TRACE(name);
        find<QAction>(action).trigger();
        auto& dialog = find<QDialog>(name);
        fitTo(dialog, dialog.size(), room);
        settle();
        EXPECT_LE(dialog.width(), room.width());
        EXPECT_LE(dialog.height(), room.height());
        const auto& close = *dialog.findChild<QPushButton*>(QLatin1StringView(button));
        EXPECT_TRUE(dialog.rect().contains({close.mapTo(&dialog, QPoint()), close.size()}));
        dialog.reject();
    }
}

} // namespace zel
