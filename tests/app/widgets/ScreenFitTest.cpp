#include "app/widgets/ScreenFit.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Words of so many lines over a button, as dialogs have them.
struct WordyDialog {
    QDialog dialog;
    QScrollArea* area;
    QPushButton* button;

    explicit WordyDialog(int lines) {
        auto* words = new QLabel(QString(u"a line of words\n"_s).repeated(lines));
        words->setWordWrap(true);
        area = scrolling(u"words"_s, words, &dialog);
        button = new QPushButton(u"Close"_s, &dialog);
        auto* column = new QVBoxLayout(&dialog);
        column->addWidget(area, 1);
        column->addWidget(button);
    }
    void openIn(const QSize& room) {
        fitTo(dialog, {500, 800}, room);
        dialog.show();
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
};

} // namespace

TEST(ScreenFitTest, aDialogStaysInItsRoomAndScrollsWhatHasNone) {
    const QSize room = roomWithin({640, 400});
    EXPECT_LT(room.height(), 400) << "there is a title bar";
    WordyDialog longOne(400);
    longOne.openIn(room);
    EXPECT_LE(longOne.dialog.height(), room.height());
    EXPECT_LE(longOne.dialog.width(), room.width());
    EXPECT_GT(longOne.area->verticalScrollBar()->maximum(), 0) << "nothing is out of reach";
    EXPECT_TRUE(longOne.dialog.rect().contains(longOne.button->geometry()));
    WordyDialog shortOne(3);
    shortOne.openIn(roomWithin({1920, 1080}));
    EXPECT_EQ(shortOne.dialog.size(), QSize(500, 800)) << "as wanted";
    EXPECT_EQ(shortOne.area->verticalScrollBar()->maximum(), 0);
}

} // namespace zel
