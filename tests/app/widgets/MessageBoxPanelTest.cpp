#include "app/widgets/MessageBoxPanel.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Runs \p act on the next box that opens.
void onBox(const std::function<void(QWidget& box)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        if (QWidget* box = QApplication::activeModalWidget()) return act(*box);
        onBox(act);
    });
}

void pressButton(QWidget& box, const char* button) {
    QTest::mouseClick(box.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

} // namespace

TEST(MessageBoxPanelTest, escAndTheCloseBoxAnswerWhatChangesNothing) {
    MessageBoxPanel panel;
    const auto none = [] { return QStringLiteral("none"); };
    const auto word = [](bool yes) { return yes ? u"yes"_s : u"no"_s; };
    struct Case {
        const char* what;
        std::function<QString()> ask;
        QString esc, enter;
    };
    const Case cases[] = {
        {"harmless", [&] { return word(panel.AskMessage(u"text"_s, u"title"_s)); }, u"no"_s, u"yes"_s},
        {"erasing", [&] { return word(panel.AskToErase(u"text"_s, u"title"_s)); }, u"no"_s, u"no"_s},
        {"losing", [&] { return word(panel.AskBeforeLosing(u"text"_s, u"title"_s)); }, none(), u"yes"_s},
        {"three",
         [&] {
             const KeepAnswer answer = panel.AskToKeep(u"text"_s, u"title"_s);
             return answer == KeepAnswer::cancel ? u"cancel"_s : u"other"_s;
         },
         u"cancel"_s, u"cancel"_s},
        {"saving",
         [&] {
             const SaveAnswer answer = panel.AskToSave(u"text"_s, u"title"_s);
             return answer == SaveAnswer::cancel ? u"cancel"_s : word(answer == SaveAnswer::save);
         },
         u"cancel"_s, u"yes"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        for (const bool closes : {true, false}) {
            bool stayed = false;
            onBox([&](QWidget& box) {
                if (closes)
                    box.close();
                else
                    QTest::keyClick(&box, Qt::Key_Escape);
                stayed = box.isVisible();
                if (stayed) pressButton(box, "btnNo");
            });
            const QString answer = one.ask();
            EXPECT_EQ(stayed ? none() : answer, one.esc);
        }
        onBox([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
        EXPECT_EQ(one.ask(), one.enter);
    }
    for (const auto& [button, answer] :
         {std::pair("btnKeep", KeepAnswer::keep), std::pair("btnErase", KeepAnswer::erase)}) {
        onBox([button = button](QWidget& box) { pressButton(box, button); });
        EXPECT_EQ(panel.AskToKeep(u"text"_s, u"title"_s), answer);
    }
    for (const auto& [button, answer] :
         {std::pair("btnSave", SaveAnswer::save), std::pair("btnDiscard", SaveAnswer::discard)}) {
        onBox([button = button](QWidget& box) { pressButton(box, button); });
        EXPECT_EQ(panel.AskToSave(u"text"_s, u"title"_s), answer);
    }
    onBox([](QWidget& box) { pressButton(box, "btnNo"); });
    EXPECT_FALSE(panel.AskBeforeLosing(u"text"_s, u"title"_s));
}

TEST(MessageBoxPanelTest, whatIsWrongHasTheSignOfAWarning) {
    MessageBoxPanel panel;
    const std::pair<QString, QMessageBox::Icon> titles[] = {
        {qtTrId("Warning"), QMessageBox::Warning},
        {qtTrId("dataFileUnreadable"), QMessageBox::Warning},
        {qtTrId("ExportTitle"), QMessageBox::Information}};
    for (const auto& [title, icon] : titles) {
        auto shown = QMessageBox::NoIcon;
        onBox([&shown](QWidget& box) {
            shown = static_cast<QMessageBox&>(box).icon();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        panel.ShowMessage(u"text"_s, title);
        EXPECT_EQ(shown, icon) << qPrintable(title);
    }
}

TEST(MessageBoxPanelTest, whatComesByItselfTakesNoKeys) {
    MessageBoxPanel panel(std::chrono::milliseconds(1));
    const std::function<void()> boxes[] = {
        [&] { panel.ShowMessage(u"text"_s, u"title"_s); },
        [&] { EXPECT_FALSE(panel.AskMessage(u"text"_s, u"title"_s)); },
        [&] { EXPECT_EQ(panel.AskToKeep(u"text"_s, u"title"_s), KeepAnswer::cancel); },
    };
    for (const auto& show : boxes) {
        bool done = false;
        onBox([](QWidget& box) {
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Y, Qt::Key_O, Qt::Key_K}) {
                QWidget* focus = QApplication::focusWidget();
                EXPECT_FALSE(qobject_cast<QPushButton*>(focus));
                QTest::keyClick(focus ? focus : &box, key);
                QTest::qWait(150); // a pressed button is seen to be pressed before it answers
                EXPECT_TRUE(box.isVisible()) << key;
            }
            QTest::keyClick(&box, Qt::Key_Tab);
            EXPECT_TRUE(qobject_cast<QPushButton*>(QApplication::focusWidget())) << "found with the keyboard";
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        panel.interject(qApp, [&] {
            show();
            done = true;
        });
        while (!done)
            QTest::qWait(1);
    }
    onBox([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_TRUE(panel.AskMessage(u"text"_s, u"title"_s)) << "what was asked for takes Enter, as ever";
}

TEST(MessageBoxPanelTest, whatComesByItselfWaitsForTheKeyboard) {
    QWidget window;
    for (const bool isTyping : {false, true}) {
        MessageBoxPanel patient(std::chrono::hours(1)), quick(std::chrono::milliseconds(1));
        if (isTyping) QTest::keyClick(&window, Qt::Key_A);
        QStringList said;
        auto gone = std::make_unique<QObject>();
        patient.interject(gone.get(), [&] { said += u"of one who is gone"_s; });
        gone.reset();
        patient.interject(&window, [&] { said += u"patient"_s; });
        quick.interject(&window, [&] { said += u"quick"_s; });
        EXPECT_TRUE(said.isEmpty()) << "not in the midst of what is under way";
        while (!said.contains(u"quick"_s))
            QTest::qWait(1);
        EXPECT_EQ(said.contains(u"patient"_s), !isTyping);
        EXPECT_EQ(said.size(), isTyping ? 1 : 2);
    }
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
