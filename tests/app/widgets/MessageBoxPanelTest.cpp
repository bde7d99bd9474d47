#include "app/widgets/MessageBoxPanel.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

TEST(MessageBoxPanelTest, takesNoAnswerFromEsc) {
    MessageBoxPanel panel;
    const auto answerWith = [](const char* button) {
        QTimer::singleShot(0, qApp, [button] {
            QWidget* box = QApplication::activeModalWidget();
            QTest::keyClick(box, Qt::Key_Escape);
            EXPECT_TRUE(box->isVisible()) << "the answer no may delete readings";
            QTest::mouseClick(box->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    };
    answerWith("btnNo");
    EXPECT_FALSE(panel.AskMessage(u"text"_s, u"title"_s));
    answerWith("btnYes");
    EXPECT_TRUE(panel.AskMessage(u"text"_s, u"title"_s));
}

TEST(MessageBoxPanelTest, enterOrEscAloneErasesNothing) {
    MessageBoxPanel panel;
    const auto press = [](Qt::Key key) {
        QTimer::singleShot(0, qApp, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        press(key);
        EXPECT_FALSE(panel.AskToErase(u"text"_s, u"title"_s));
    }
    press(Qt::Key_Return);
    EXPECT_TRUE(panel.AskMessage(u"text"_s, u"title"_s));
}

TEST(MessageBoxPanelTest, keepsTheButtonOfALongMessageOnTheScreen) {
    MessageBoxPanel panel;
    QTimer::singleShot(0, qApp, [] {
        QWidget* box = QApplication::activeModalWidget();
        EXPECT_LT(box->height(), box->screen()->availableSize().height());
        EXPECT_TRUE(box->findChild<QWidget*>(u"longText"_s)->isVisible());
        EXPECT_EQ(qobject_cast<QMessageBox*>(box)->textFormat(), Qt::PlainText) << "no file name is markup";
        EXPECT_EQ(qobject_cast<QMessageBox*>(box)->icon(), QMessageBox::Warning);
        QTest::mouseClick(box->findChild<QWidget*>(u"btnOK"_s), Qt::LeftButton);
    });
    panel.ShowMessage(u"One file of many, each on its line\n"_s.repeated(200), qtTrId("Warning"));
}

} // namespace zel
