#include "AppTest.h"

#include <QApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QFile>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>

#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class FileDropTest : public AppTest {
protected:
    FileDropTest() {
        startsPlugged = false;
        addPatient(u"P1"_s, u"Adams"_s);
    }
    QUrl file(const QString& name, const QByteArray& content = {}) const {
        QFile made(home.filePath(name));
        EXPECT_TRUE(made.open(QFile::WriteOnly) && made.write(content) == content.size());
        return QUrl::fromLocalFile(made.fileName());
    }
    /// As another program does: hovers over a widget and lets go. \return whether the window takes it
    bool drop(const QList<QUrl>& urls, QWidget& on,
              Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction) {
        QMimeData data;
        data.setUrls(urls);
        data.setText(u"as text"_s);
        QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, {});
        enter.setAccepted(false);
        QApplication::sendEvent(&on, &enter);
        if (!enter.isAccepted()) return false;
        whileOver();
        QDragMoveEvent move({6, 6}, actions, &data, Qt::LeftButton, {});
        move.setAccepted(false);
        QApplication::sendEvent(&on, &move);
        EXPECT_TRUE(move.isAccepted());
        QDropEvent drop({5, 5}, actions, &data, Qt::LeftButton, {});
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&on, &drop);
        isCopy = drop.dropAction() == Qt::CopyAction;
        isAskedWithin = !chooser.asked.isEmpty() || !panel.messages.isEmpty();
        onceDropped();
        QCoreApplication::processEvents();
        return true;
    }
    static QByteArray patientFile(const QByteArray& ID) {
        return "<ZEL><Patient><ID>" + ID + "</ID><FamilyName>Dropped</FamilyName></Patient></ZEL>";
    }
    std::function<void()> whileOver = [] {}, onceDropped = [] {};
    bool isCopy = false;
    bool isAskedWithin = false;
};

} // namespace

TEST_F(FileDropTest, filesAreImportedOnceTheOtherProgramHasItsAnswer) {
    start();
    panel.messages.clear();
    const QUrl good = file(u"N 1.xml"_s, patientFile("N1"));
    const QUrl known = file(u"P1.xml"_s, patientFile("P1"));
    const QUrl paper = file(u"scan.pdf"_s);
    chooser.files = QStringList(good.toLocalFile());
    bool isKnown = false;
    chooser.whenListed = [&] {
        isKnown = chooser.listed.isKnown(u"P1"_s) && !chooser.listed.isKnown(u"N1"_s);
    };
    type("PatientNotes", u"mine"_s);
    EXPECT_TRUE(drop({good, paper, known, good}, *find<QPlainTextEdit>("PatientNotes").viewport()));
    EXPECT_FALSE(isAskedWithin) << "the other program waits";
    EXPECT_TRUE(isCopy) << "or it would remove the files";
    EXPECT_TRUE(isKnown);
    EXPECT_EQ(chooser.listed.files, (QStringList{good.toLocalFile(), known.toLocalFile()}));
    EXPECT_EQ(chooser.listed.remark, qtTrId("dropLeftOut").arg(u"scan.pdf"_s));
    EXPECT_TRUE(store.validIDinXML(u"N1"_s));
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"mine"_s)
        << "no path was typed, nothing is lost";
    EXPECT_EQ(panel.messages.size(), 1);
}

TEST_F(FileDropTest, whatIsNoFileOfPatientsIsToldOrLeftToItsField) {
    start();
    panel.messages.clear();
    EXPECT_TRUE(drop({file(u"scan.pdf"_s), file(u"OLD.XML"_s)}, window()));
    EXPECT_EQ(panel.messages.takeFirst(),
              qtTrId("importTitle") + u": "_s
                  + qtTrId("dropLeftOut").arg(u"scan.pdf"_s + qtTrId(", ") + u"OLD.XML"_s));
    EXPECT_FALSE(drop({QUrl(u"https://example.org/a.xml"_s)}, window())) << "nothing is fetched";
    EXPECT_FALSE(drop({file(u"a.xml"_s)}, window(), Qt::MoveAction));
    EXPECT_TRUE(
        drop({QUrl(u"https://example.org/a.xml"_s)}, *find<QPlainTextEdit>("PatientNotes").viewport()))
        << "Qt's own: a text";
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"as text"_s);
    QDialog question(&window());
    question.setModal(true);
    question.show();
    EXPECT_FALSE(drop({file(u"a.xml"_s)}, window())) << "while a question stands";
    EXPECT_TRUE(chooser.asked.isEmpty());
}

TEST_F(FileDropTest, whatWasDroppedBeforeAQuestionCameUpWaitsForItsEnd) {
    start();
    panel.messages.clear();
    const QUrl first = file(u"N 1.xml"_s, patientFile("N1"));
    const QUrl second = file(u"N 2.xml"_s, patientFile("N2"));
    QDialog question(&window());
    question.setModal(true);
    const auto ask = [&] { question.show(); };
    for (auto* moment : {&whileOver, &onceDropped}) {
        *moment = ask;
        EXPECT_TRUE(drop({first, second}, window()));
        *moment = [] {};
        EXPECT_TRUE(chooser.asked.isEmpty()) << "not over the question";
        panel.isTyping = true; // the answer to it
        question.hide();
        QCoreApplication::processEvents();
        EXPECT_TRUE(chooser.asked.isEmpty()) << "the list would take the key";
        panel.isTyping = false;
        ASSERT_EQ(panel.heldBack.size(), 1U);
        panel.heldBack.front()();
        panel.heldBack.clear();
        QCoreApplication::processEvents();
        EXPECT_EQ(chooser.asked.size(), 1) << "once";
        EXPECT_EQ(chooser.listed.files, (QStringList{first.toLocalFile(), second.toLocalFile()}));
        chooser.asked.clear();
        chooser.listed = {};
    }
    question.show();
    auto& field = *find<QPlainTextEdit>("PatientNotes").viewport();
    EXPECT_FALSE(drop({first}, field)) << "the pointer says so";
    question.hide();
    QCoreApplication::processEvents();
    EXPECT_TRUE(chooser.asked.isEmpty() && panel.heldBack.empty());
}

} // namespace zel
