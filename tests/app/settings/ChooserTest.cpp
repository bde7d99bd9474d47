#include "app/settings/SelectFolderController.h"
#include "store/ViewMemory.h"
#include "support/Traces.h"
#include "support/WidgetTest.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace zel {

using namespace Qt::StringLiterals;

TEST(ChooserTest, keepsNoRecordOfWhatWasChosen) {
    const QTemporaryDir around;
    const QTemporaryDir chosen;
    const QByteArray home = qgetenv("HOME");
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(name, around.path().toUtf8());
    const QString folder = chosen.filePath(u"Wolpertinger"_s);
    QDir().mkdir(folder);
    SelectFolderController chooser;
    QWidget owner;
    QTimer::singleShot(0, &owner, [&] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, 20000));
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(dialog->testOption(QFileDialog::DontUseNativeDialog)) << "a desktop's own keeps a list";
        dialog->setDirectory(folder);
        dialog->findChild<QLineEdit*>()->setText(folder + u"/QXZ-771-04.pdf"_s);
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
    const QString path = chooser.choosePdf(&owner, u"PDF"_s, u"QXZ-771-04.pdf"_s);
    EXPECT_EQ(path, folder + u"/QXZ-771-04.pdf"_s);
    EXPECT_EQ(traces(around.path(), {u"Wolpertinger"_s, u"QXZ-771-04"_s}).join(u'|').toStdString(), "");
    qputenv("HOME", home);
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(name);
}

TEST(ChooserTest, beginsWhereSomebodyWasTheLastTime) {
    const QTemporaryDir around;
    const QString folder = around.filePath(u"reports"_s), gone = around.filePath(u"gone"_s);
    QDir().mkdir(folder);
    const auto beginning = [](SelectFolderController& chooser, const QString& file) {
        QWidget owner;
        QString begun;
        QTimer::singleShot(0, &owner, [&] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, 20000));
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            begun = dialog->directory().absolutePath();
            if (file.isEmpty()) return dialog->reject();
            dialog->findChild<QLineEdit*>()->setText(file);
            QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
        });
        std::ignore = chooser.choosePdf(&owner, u"PDF"_s, u"a.pdf"_s);
        return begun;
    };
    ViewMemory memory(around.filePath(u"memory.json"_s));
    SelectFolderController first(&memory);
    std::ignore = beginning(first, {});
    EXPECT_TRUE(memory.value(u"folder"_s).isUndefined()) << "nothing was chosen";
    std::ignore = beginning(first, folder + u"/Kim.pdf"_s);
    EXPECT_EQ(memory.value(u"folder"_s), folder) << "without the file's name";
    SelectFolderController second(&memory);
    EXPECT_EQ(beginning(second, {}), folder);
    memory.set(u"folder"_s, gone);
    SelectFolderController third(&memory);
    EXPECT_EQ(beginning(third, {}), QDir::homePath());
}

} // namespace zel
