// Every call of the system on the data file's folder fails once while the window saves, or downloads.
#include "AppTest.h"
#include "support/FailingCalls.h"
#include "support/FromEnvironment.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QPlainTextEdit>

#include <cerrno>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// ZEL_CALL_STRIDE says that only each so many-th call is to fail.
const unsigned stride = fromEnvironment("ZEL_CALL_STRIDE", 1);

class FailedCallTest : public AppTest {
protected:
    FailedCallTest() { addPatient(u"DEMO1"_s, u"Adams"_s); }

    /// \p act with each call failing in turn, from the same file; \p check sees the file as \p act makes it.
    void eachCall(std::initializer_list<int> errors, const std::function<void()>& prepare,
                  const std::function<void()>& act, const std::function<void(bool isStored)>& check) {
        const QByteArray before = dataFile();
        for (const int error : errors) {
            for (unsigned nth = 1; !HasFailure(); nth += stride) {
                replaceDataFile(before);
                ASSERT_TRUE(store.loadXML());
                prepare();
                panel.messages.clear();
                QByteArray call;
                {
                    const FailingCalls failing(home.path(), nth, error);
                    act();
                    call = FailingCalls::failed();
                }
                SCOPED_TRACE(call.toStdString() + ", call " + std::to_string(nth) + ", error "
                             + std::to_string(error));
                check(dataFile() != before);
                if (call.isEmpty()) break; // there are no more
            }
        }
    }
};

} // namespace

TEST_F(FailedCallTest, WhatWasTypedIsStoredOrStillThere) {
    startsPlugged = false;
    start();
    int number = 0;
    QString typed;
    eachCall(
        {EIO, ENOSPC, EACCES, EINTR}, [&] { type("PatientNotes", typed = QString::number(++number)); },
        [&] { press(Qt::Key_S, Qt::ControlModifier); },
        [&](bool isStored) {
            EXPECT_TRUE(isStored || !panel.messages.empty());
            const bool isShown = find<QPlainTextEdit>("PatientNotes").toPlainText() == typed;
            EXPECT_TRUE(isStored || isShown);
            EXPECT_EQ(isStored, dataFile().contains("<PatientNotes>" + typed.toUtf8()));
        });
    EXPECT_GT(number * static_cast<int>(stride), 40);
}

TEST_F(FailedCallTest, NoReadingsAreLostByADownload) {
    plan.ID = "DEMO1";
    startConnected();
    port->keepsNothing = true; // so that the next download finds them again
    const qint64 withoutReadings =
        QFileInfo(store.getZELXMLPath()).size() + 1000; // bytes; of what is typed, too
    std::atomic<bool> isErasedEarly = false;
    port->onFrame = [&, path = store.getZELXMLPath()] {
        if (QFileInfo(path).size() < withoutReadings) isErasedEarly = true;
    };
    const auto download = [this] {
        click("btnDataTransfer"); // what is typed is saved first
        waitFor([this] { return !status.isBusy(); });
    };
    const auto reopen = [this] { // what cannot be read is looked for at the next start
        ASSERT_TRUE(store.loadXML());
        waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
    };
    const auto stored = [this] { return dataFile().count("<MeasureRec>"); };
    int number = 0;
    QByteArray typed;
    const auto prepare = [&] {
        QDir(QFileInfo(store.getZELXMLPath()).dir().filePath(u"Backups"_s)).removeRecursively();
        click("patientBtn");
        type("PatientNotes", QString::fromLatin1(typed = "typed " + QByteArray::number(++number)));
    };
    const auto isTyped = [&] { return dataFile().contains("<PatientNotes>" + typed); };
    eachCall({ENOSPC, EINTR}, prepare, download, [&](bool isStored) {
        EXPECT_FALSE(isErasedEarly);
        EXPECT_TRUE(stored() == 12 || stored() == 0);
        EXPECT_TRUE(stored() == 12 || !panel.messages.empty()) << "it is told";
        for (const QString& told : panel.messages)
            EXPECT_FALSE(told.contains(qtTrId("downloadOtherMonitor"))) << "it is the right one";
        const bool isShown = find<QPlainTextEdit>("PatientNotes").toPlainText().toLatin1() == typed;
        EXPECT_TRUE((isStored && isTyped()) || isShown);
        click("patientBtn");
        if (!store.lastLoad()) reopen();
        download();
        EXPECT_EQ(stored(), 12);
        EXPECT_TRUE(isTyped());
    });
    EXPECT_GT(number * static_cast<int>(stride), 40);
}

TEST_F(FailedCallTest, AStepIsTakenBackOrStaysAndIsTold) {
    startsPlugged = false;
    start();
    auto* undo = window().findChild<QAction*>(u"undoStep"_s);
    int tried = 0;
    const auto prepare = [&] {
        PatientModel patient = *store.getPatientByID(u"DEMO1"_s);
        const PatientModel asRead = patient;
        patient.PatientNotes = u"typed"_s;
        ASSERT_TRUE(store.saveXMLPatient(patient, asRead));
        ASSERT_TRUE(store.loadXML());
    };
    eachCall(
        {EIO, ENOSPC, EACCES, EINTR}, prepare, [&] { undo->trigger(); },
        [&](bool isAsBeforeUndo) {
            ++tried;
            EXPECT_EQ(isAsBeforeUndo, store.changes().redoable() == nullptr);
            EXPECT_EQ(isAsBeforeUndo, dataFile().contains("<PatientNotes>typed<"));
            EXPECT_TRUE(!isAsBeforeUndo || !panel.messages.empty());
        });
    EXPECT_GT(tried * static_cast<int>(stride), 40);
}

} // namespace zel
