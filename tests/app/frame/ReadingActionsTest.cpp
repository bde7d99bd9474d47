#include "app/frame/ReadingActions.h"

#include "support/ReadingPageTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// P1's readings of three days, chosen by their places. It is 09:00 on 21 November 2026.
class ReadingActionsTest : public ReadingPageTest {
protected:
    ReadingActionsTest() {
        storeReadings(u"P1"_s, {reading(u"202603010800"_s, 121), reading(u"202603030800"_s, 122),
                                reading(u"202603100800"_s, 123)});
        view = new QWidget;
        view->setFocusPolicy(Qt::StrongFocus);
        actions = new ReadingActions(
            {store, panel, clock}, [this] { return readings(); }, *view);
        show(view);
    }
    [[nodiscard]] std::vector<const ReadingModel*> readings() const {
        std::vector<const ReadingModel*> found;
        for (const std::size_t place : chosen)
            if (place < store.getReadingForCurID().size())
                found.push_back(&store.getReadingForCurID()[place]);
        return found;
    }
    void choose(std::vector<std::size_t> places) {
        chosen = std::move(places);
        actions->update();
    }
    /// Presses the action's key, and acts in its dialog, which is closed at last.
    void inDialog(const char* name, const std::function<void(QDialog&)>& act) {
        bool isShown = false;
        comeBack();
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr) << name;
            isShown = true;
            dialog->activateWindow();
            waitFor([dialog] { return dialog->isActiveWindow(); });
            act(*dialog);
            dialog->reject();
        });
        pressKeyOf(name);
        QCoreApplication::processEvents();
        EXPECT_TRUE(isShown) << name;
    }
    /// A dialog may have taken the focus with it.
    void comeBack() {
        window().activateWindow();
        view->setFocus();
        waitFor([this] { return view->hasFocus(); });
    }
    void pressKeyOf(const char* name) {
        const QKeyCombination key = actionOf(name).shortcut()[0];
        press(key.key(), key.keyboardModifiers());
    }
    [[nodiscard]] QAction& actionOf(const char* name) const {
        for (QAction* action : actions->actions())
            if (action->objectName() == QLatin1String(name)) return *action;
        qFatal("no action %s", name);
    }
    static void write(const QDialog& dialog, const char* field, const QString& text) {
        auto& line = *dialog.findChild<QLineEdit*>(QLatin1String(field));
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    static QString said(const QDialog& dialog, const char* label) {
        const auto& line = *dialog.findChild<QLabel*>(QLatin1String(label));
        return line.isVisible() ? line.text() : QString();
    }
    /// Systolic values, ! for what is left out, m for what was typed in.
    [[nodiscard]] QString shown() const {
        QStringList all;
        for (const ReadingModel& reading : store.getReadingForCurID())
            all += QString::number(reading.sys) + (reading.isExcluded() ? u"!"_s : u""_s)
                   + (reading.isManual ? u"m"_s : u""_s);
        return all.join(u' ');
    }

    QWidget* view;
    std::vector<std::size_t> chosen;
    ReadingActions* actions;
};

} // namespace

TEST_F(ReadingActionsTest, leavingOutNeedsAReasonAndEscChangesNothing) {
    choose({0, 2});
    inDialog("leaveOutReadings", [](QDialog& dialog) {
        expectNamed(dialog);
        EXPECT_TRUE(said(dialog, "lblExclusion").startsWith(u"2 readings:"_s));
        write(dialog, "exclusionReason", u"typed"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(shown(), u"121 122 123"_s);
    inDialog("leaveOutReadings", [](QDialog& dialog) {
        write(dialog, "exclusionReason", u"  "_s);
        QTest::keyClick(dialog.findChild<QWidget*>(u"exclusionReason"_s), Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(said(dialog, "exclusionProblem"), qtTrId("leaveOutNoReason"));
        QCoreApplication::processEvents();
        const auto& words = *dialog.findChild<QLabel*>(u"lblExclusion"_s);
        EXPECT_GE(words.height(), words.heightForWidth(words.width())) << "gives no room to the problem";
        write(dialog, "exclusionReason", u"cuff & <b>"_s);
        QTest::keyClick(dialog.findChild<QWidget*>(u"exclusionReason"_s), Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(shown(), u"121! 122 123!"_s);
    EXPECT_EQ(store.changes().undoable()->name.count, 2U) << "one step";
    choose({0, 1});
    comeBack();
    pressKeyOf("takeInReadings");
    EXPECT_EQ(shown(), u"121 122 123!"_s);
    choose({2});
    inDialog("leaveOutReadings", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"exclusionReason"_s)->text(), u"cuff & <b>"_s);
    });
    choose({0, 1, 2});
    inDialog("leaveOutReadings", [](QDialog& dialog) {
        EXPECT_TRUE(said(dialog, "lblExclusion").startsWith(u"2 readings:"_s));
        write(dialog, "exclusionReason", u"ill"_s);
        QTest::keyClick(dialog.findChild<QWidget*>(u"exclusionReason"_s), Qt::Key_Return);
    });
    EXPECT_EQ(store.getReadingForCurID()[2].exclusion, u"cuff & <b>"_s) << "the earlier reason stays";
    EXPECT_EQ(store.getReadingForCurID()[0].exclusion, u"ill"_s);
}

TEST_F(ReadingActionsTest, whatIsTypedStaysWhenItCannotBeStored) {
    choose({1});
    inDialog("leaveOutReadings", [this](QDialog& dialog) {
        EXPECT_TRUE(said(dialog, "lblExclusion").startsWith(u"03/03/2026 08:00 A, 122/80, pulse 65:"_s));
        replaceDataFile(dataFile().replace("<Sys>122<", "<Sys>125<"));
        write(dialog, "exclusionReason", u"typed"_s);
        QTest::keyClick(dialog.findChild<QWidget*>(u"exclusionReason"_s), Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"exclusionReason"_s)->text(), u"typed"_s);
    });
    EXPECT_EQ(panel.messages.size(), 1);
    EXPECT_EQ(shown(), u"121 125 123"_s);
}

TEST_F(ReadingActionsTest, readingIsTypedInChangedAndDeleted) {
    choose({});
    inDialog("newReading", [](QDialog& dialog) {
        expectNamed(dialog);
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"readingDay"_s)->text(), u"21/11/2026"_s);
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"readingTime"_s)->text(), u"09:00 A"_s);
        EXPECT_EQ(said(dialog, "readingPatient"), u"Kim Adams (ID P1)"_s);
        const auto save = [&] {
            QTest::keyClick(dialog.findChild<QWidget*>(u"readingSys"_s), Qt::Key_Return);
        };
        const auto refused = [&] {
            return dialog.isVisible() ? said(dialog, "readingProblem") : u"stored"_s;
        };
        save();
        EXPECT_EQ(refused(), describe(ManualProblem::sys));
        write(dialog, "readingSys", u"12O"_s);
        save();
        EXPECT_EQ(refused(), describe(ManualProblem::sys));
        write(dialog, "readingSys", u"128"_s);
        write(dialog, "readingDia", u"128"_s);
        write(dialog, "readingPulse", u"60"_s);
        save();
        EXPECT_EQ(refused(), describe(ManualProblem::diaNotBelowSys));
        EXPECT_EQ(dialog.focusWidget(), dialog.findChild<QWidget*>(u"readingDia"_s));
        write(dialog, "readingDia", u"82"_s);
        write(dialog, "readingTime", u"9:01 a"_s);
        save();
        EXPECT_EQ(refused(), describe(ManualProblem::inFuture));
        write(dialog, "readingTime", u"8:59 a"_s);
        save();
        EXPECT_EQ(refused(), u"stored"_s);
    });
    EXPECT_EQ(shown(), u"121 122 123 128m"_s);
    EXPECT_EQ(store.getReadingForCurID().back().minuteOfDay, 8 * 60 + 59);
    choose({3});
    inDialog("changeReading", [](QDialog& dialog) {
        write(dialog, "readingSys", u"130"_s);
        QTest::mouseClick(dialog.findChild<QWidget*>(u"btnSaveReading"_s), Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(shown(), u"121 122 123 130m"_s);
    inDialog("newReading", [](QDialog& dialog) {
        write(dialog, "readingTime", u"8:59 a"_s);
        write(dialog, "readingSys", u"130"_s);
        write(dialog, "readingDia", u"82"_s);
        write(dialog, "readingPulse", u"60"_s);
        QTest::mouseClick(dialog.findChild<QWidget*>(u"btnSaveReading"_s), Qt::LeftButton);
        EXPECT_EQ(said(dialog, "readingProblem"), qtTrId("StoreReadingKnown"));
    });
    panel.answers[qtTrId("deleteReadingsTitle")] = false;
    comeBack();
    pressKeyOf("deleteReadings");
    EXPECT_EQ(shown(), u"121 122 123 130m"_s);
    EXPECT_TRUE(panel.asked.contains(u"130/82"_s));
    panel.answers.clear();
    comeBack();
    pressKeyOf("deleteReadings");
    EXPECT_EQ(shown(), u"121 122 123"_s);
    EXPECT_EQ(panel.messages, QStringList());
}

TEST_F(ReadingActionsTest, whatWouldCountTwiceStaysLeftOutAndIsTold) {
    const ReadingList measured = store.getReadingForCurID();
    replaceDataFile(dataFile().replace("<Sys>122<", "<Sys>125<"));
    ASSERT_TRUE(store.addReading(u"P1"_s, ManualReading::of(measured[1])));
    ASSERT_EQ(store.newDataTransfer(u"P1"_s, measured), (TransferCounts{1, 1}));
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID()[0]}, u"x"_s));
    EXPECT_EQ(shown(), u"121! 125 123 122!m 122"_s);
    choose({0, 1, 2, 3, 4});
    comeBack();
    pressKeyOf("takeInReadings");
    EXPECT_EQ(shown(), u"121 125 123 122!m 122"_s);
    EXPECT_EQ(panel.messages, QStringList{u"Warning: "_s + qtTrId("stillLeftOutTwice", 1)});
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID()[4]}, u"x"_s));
    ASSERT_TRUE(store.includeReadings({store.getReadingForCurID()[3]}));
    EXPECT_EQ(shown(), u"121 125 123 122m 122!"_s);
    comeBack();
    pressKeyOf("takeInReadings");
    EXPECT_EQ(shown(), u"121 125 123 122!m 122"_s);
    EXPECT_EQ(panel.messages.back(), u"Warning: "_s + qtTrId("takenInTypedLeftOut", 1));
}

TEST_F(ReadingActionsTest, dateAndTimeAreStoredAsTypedOrRefusedInWordsHoweverTheFieldsAreEntered) {
    const QString half = u"12-hours"_s, full = u"24-hours"_s, october = u"202610050805"_s;
    const auto noDay = [](const QString& text) { return qtTrId("dayUnread").arg(text, u"DD/MM/YYYY"_s); };
    const auto noTime = [this](const QString& text) {
        const SettingModel& settings = store.getSetting();
        return qtTrId("timeUnread").arg(text, settings.timeText(8 * 60 + 5), settings.timeText(20 * 60 + 5));
    };
    const struct {
        QString clock, day, time;
        QString stored; ///< null: refused
        std::function<QString()> why = [] { return QString(); };
    } cases[]{
        {half, u"05/10/2026"_s, u"08:05 A"_s, october},
        {half, u"5/10/2026"_s, u"8:05 pm"_s, u"202610052005"_s},
        {half, u"05102026"_s, u"0805a"_s, october},
        {half, u"5/10/2026"_s, u"8:05"_s, {}, [&] { return noTime(u"8:05"_s); }},
        {full, u"05/10/2026"_s, u"08:05"_s, october},
        {full, u"5.10.2026"_s, u"8:05"_s, october},
        {full, u"05/10/2026"_s, u"25:00"_s, {}, [&] { return noTime(u"25:00"_s); }},
        {full, u"31/02/2026"_s, u"8:05"_s, {}, [&] { return noDay(u"31/02/2026"_s); }},
        {full, u"5/10/26"_s, u"8:05"_s, {}, [&] { return noDay(u"5/10/26"_s); }},
        {full, u"05/10/0206"_s, u"8:05"_s, {}, [] { return describe(ManualProblem::tooEarly); }},
    };
    int sys = 130;
    for (const auto& each : cases) {
        store.getSetting().timeFormat = each.clock;
        ASSERT_TRUE(store.saveSetting());
        for (const char* entered : {"click", "Tab", "Shift+Tab", "Ctrl+A"}) {
            const auto act = [&](QDialog& dialog) {
                write(dialog, "readingSys", QString::number(++sys));
                write(dialog, "readingDia", u"80"_s);
                write(dialog, "readingPulse", u"60"_s);
                for (const auto& [name, text] :
                     {std::pair(u"readingTime"_s, each.time), {u"readingDay"_s, each.day}}) {
                    auto* field = dialog.findChild<QWidget*>(name);
                    enter(*field, entered);
                    QTest::keyClicks(field, text);
                }
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                EXPECT_EQ(said(dialog, "readingProblem"), each.why()) << entered;
                EXPECT_EQ(dialog.isVisible(), each.stored.isNull());
            };
            inDialog("newReading", act);
            const ReadingModel& last = store.getReadingForCurID().back();
            EXPECT_EQ(last.sys == static_cast<std::uint32_t>(sys), !each.stored.isNull());
            if (each.stored.isNull()) continue;
            EXPECT_EQ(DateToStr(last.ReadingDate, u"yyyyMMddHHmm"_s), each.stored) << entered;
        }
    }
}

TEST_F(ReadingActionsTest, itIsSaidWhetherTheReadingIsShown) {
    const ReadingModel morning = store.getReadingForCurID().back(); // on 10 March
    for (const auto& [last, view, words] :
         {std::tuple(u"202603102359"_s, ViewSelection::amOnly, "readingStored"),
          std::tuple(u"202603102359"_s, ViewSelection::pmOnly, "readingStoredOtherHalf"),
          std::tuple(u"202603092359"_s, ViewSelection::custom, "readingStoredOutside")})
        EXPECT_EQ(
            storedInWords(morning, {{at(u"202603010000"_s), at(last)}, view, false}, store.getSetting()),
            qtTrId(words).arg(readingsInWords({morning}, store.getSetting())));
}

TEST_F(ReadingActionsTest, onlyWhatMakesSenseCanBeChosen) {
    ASSERT_TRUE(store.addReading(u"P1"_s, {std::chrono::floor<Instant::duration>(clock.now()), 120, 80, 60}));
    ASSERT_TRUE(store.excludeReadings({store.getReadingForCurID().front()}, u"x"_s));
    const std::pair<std::vector<std::size_t>, QString> cases[] = {
        {{}, u"newReading"_s},
        {{1}, u"leaveOutReadings newReading"_s},
        {{0, 1}, u"leaveOutReadings takeInReadings newReading"_s},
        {{3}, u"leaveOutReadings newReading changeReading deleteReadings"_s},
        {{1, 3}, u"leaveOutReadings newReading"_s},
    };
    for (const auto& [places, wanted] : cases) {
        choose(places);
        QStringList enabled;
        for (const QAction* action : actions->actions())
            if (action->isEnabled()) enabled += action->objectName();
        EXPECT_EQ(enabled.join(u' '), wanted);
    }
    chosen.clear();
    store.setCurrentID({});
    EXPECT_FALSE(actions->newReading()->isEnabled());
}

} // namespace zel
