#include "app/settings/SelectFolderController.h"
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

} // namespace zel
