#include "app/settings/ImportFileDialog.h"

#include "app/settings/SelectFolderController.h"
#include "app/settings/XmlFileList.h"
#include "support/ScriptedChooser.h"
#include "support/WidgetTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Files to choose from, and what is none of them.
class Folder : public QTemporaryDir {
public:
    Folder() {
        put(u"b.xml"_s, "<ZEL><Patient><ID>B1</ID><FamilyName>Smith</FamilyName><GivenNames>Margaret"
                        "</GivenNames></Patient><Patient><ID>B2</ID><FamilyName>&lt;i&gt;</FamilyName>"
                        "</Patient><MeasureRec/><MeasureRec/><Comment/></ZEL>");
        put(u"a.xml"_s, "<ZEL><Patient><ID>A</ID></Patient></ZEL>");
        put(u"c.xml"_s, "<ZEL><Patient><ID>N1</ID></Patient><MeasureRec><ID>KNOWN</ID></MeasureRec></ZEL>");
        put(u"damaged.xml"_s, "<ZEL>");
        put(u"UPPER.XML"_s, "<ZEL/>");
        put(u"a.txt"_s, "<ZEL/>");
        QDir(path()).mkdir(u"folder.xml"_s);
        QDir(path()).mkdir(u"empty"_s);
    }

private:
    void put(const QString& name, const QByteArray& content) const {
        QFile file(filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
};

class ImportFileDialogTest : public WidgetTest {
protected:
    [[nodiscard]] QWidget& window() override { return dialog; }
    const QAbstractItemModel& list() { return *find<QTableView>("tblFiles").model(); }
    QStringList row(int number) {
        QStringList texts;
        for (int column = 0; column < list().columnCount(); ++column)
            texts += list().index(number, column).data().toString();
        return texts;
    }
    void waitUntilRead() {
        auto& files = *dialog.findChild<XmlFileList*>();
        waitFor([&] { return !files.isReading(); });
        QCoreApplication::processEvents();
    }
    void clickRow(int number, XmlFileList::Column column) {
        auto& table = find<QTableView>("tblFiles");
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(list().index(number, column)).center());
    }
    QStringList names() {
        QStringList chosen;
        for (const QString& path : dialog.chosenFiles())
            chosen += QFileInfo(path).fileName();
        return chosen;
    }

    Folder folder;
    ScriptedChooser folders;
    ImportFileDialog dialog{
        folders,
        folder.path(),
        {.isKnown = [](const QString& ID) { return ID == "KNOWN"_L1; }, .dateFormat = u"dd/MM/yyyy"_s},
        nullptr};
};

} // namespace

TEST_F(ImportFileDialogTest, listsTheXMLFilesWithWhatIsInThem) {
    ASSERT_EQ(list().rowCount(), 4) << "before any is read";
    waitUntilRead();
    const QString today = QDate::currentDate().toString(u"dd/MM/yyyy"_s);
    EXPECT_EQ(row(0), (QStringList{u"a.xml"_s, {}, u"0"_s, u"0"_s, today, {}}));
    const QString names = u"Smith, Margaret"_s + qtTrId("; ") + u"<i>"_s;
    EXPECT_EQ(row(1), (QStringList{u"b.xml"_s, names, u"2"_s, u"1"_s, today, {}}));
    EXPECT_EQ(row(2), (QStringList{u"c.xml"_s, {}, u"1"_s, u"0"_s, today, qtTrId("fileAlreadyHere")}));
    EXPECT_EQ(row(3), (QStringList{u"damaged.xml"_s, {}, {}, {}, {}, qtTrId("fileNotReadable")}));
    const QVariant hint = list().index(1, XmlFileList::patients).data(Qt::ToolTipRole);
    EXPECT_TRUE(hint.toString().contains(u"&lt;i&gt;"_s)) << "no name is markup";
    ASSERT_TRUE(QFile::resize(folder.filePath(u"a.xml"_s), XmlFile::largestCounted + 1));
    dialog.findChild<XmlFileList*>()->setFolder(folder.path());
    waitUntilRead();
    EXPECT_EQ(row(0), (QStringList{u"a.xml"_s, {}, {}, {}, {}, qtTrId("fileTooLargeToCount")}));
    EXPECT_TRUE(list().flags(list().index(0, 0)) & Qt::ItemIsUserCheckable);
}

TEST_F(ImportFileDialogTest, nothingIsChosenBeforeItIsKnownWhatItIs) {
    auto& files = *dialog.findChild<XmlFileList*>();
    const QStringList paths{folder.filePath(u"a.xml"_s), folder.filePath(u"c.xml"_s)};
    files.setFiles(paths);
    EXPECT_TRUE(files.chosenFiles().isEmpty());
    files.chooseAll(true);
    EXPECT_TRUE(files.chosenFiles().isEmpty());
    EXPECT_TRUE(find<QCheckBox>("boxAll").isChecked());
    waitUntilRead();
    EXPECT_EQ(names(), QStringList(u"a.xml"_s));
    files.setFiles(paths);
    files.chooseAll(false);
    waitUntilRead();
    EXPECT_TRUE(names().isEmpty()) << "given up before they were known";
}

TEST_F(ImportFileDialogTest, whatCannotBeTakenHasNoBoxAndWhoIsHereIsNotTickedWithAll) {
    dialog.show();
    click("boxAll");
    waitUntilRead();
    EXPECT_EQ(names(), (QStringList{u"a.xml"_s, u"b.xml"_s})) << "what was ticked before it was known";
    EXPECT_TRUE(find<QCheckBox>("boxAll").isChecked());
    EXPECT_FALSE(list().index(3, 0).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(list().flags(list().index(3, 0)) & Qt::ItemIsUserCheckable);
    clickRow(3, XmlFileList::name);
    EXPECT_EQ(names().size(), 2);
    const QString why = list().index(3, XmlFileList::state).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(why.contains(u"damaged.xml"_s)) << qPrintable(why);
    clickRow(2, XmlFileList::state);
    EXPECT_EQ(names().last(), u"c.xml"_s) << "knowing it";
    click("boxAll");
    EXPECT_TRUE(names().isEmpty());
    QFile::remove(folder.filePath(u"a.xml"_s));
    QFile::remove(folder.filePath(u"b.xml"_s));
    dialog.findChild<XmlFileList*>()->setFolder(folder.path());
    waitUntilRead();
    EXPECT_FALSE(find<QCheckBox>("boxAll").isEnabled()) << "there is nothing to take with it";
}

TEST_F(ImportFileDialogTest, whoIsInALargeFileIsNotKnownSoItIsNotTickedFromTheStart) {
    ASSERT_TRUE(QFile::resize(folder.filePath(u"a.xml"_s), XmlFile::largestCounted + 1));
    dialog.show();
    const QStringList both{folder.filePath(u"a.xml"_s), folder.filePath(u"b.xml"_s)};
    dialog.findChild<XmlFileList*>()->setFiles(both);
    waitUntilRead();
    EXPECT_EQ(names(), QStringList(u"b.xml"_s)) << "who is in the large one was not seen";
    click("boxAll");
    click("boxAll");
    EXPECT_EQ(names(), QStringList(u"b.xml"_s));
    clickRow(0, XmlFileList::name);
    EXPECT_EQ(names().size(), 2) << "by itself";
}

TEST_F(ImportFileDialogTest, filesAreChosenByMouseAndKeys) {
    dialog.show();
    waitUntilRead();
    EXPECT_FALSE(find<QWidget>("btnImport").isEnabled());
    QTest::mouseClick(find<QTableView>("tblFiles").viewport(), Qt::RightButton, {}, {8, 8});
    EXPECT_TRUE(names().isEmpty());
    clickRow(1, XmlFileList::readings);
    EXPECT_EQ(names(), QStringList(u"b.xml"_s));
    EXPECT_EQ(find<QPushButton>("btnImport").text(), qtTrId("importButtonFiles", 1));
    QTest::keyClick(&find<QWidget>("tblFiles"), Qt::Key_Up);
    QTest::keyClick(&find<QWidget>("tblFiles"), Qt::Key_Space);
    EXPECT_EQ(names(), (QStringList{u"a.xml"_s, u"b.xml"_s}));
    clickRow(1, XmlFileList::name);
    EXPECT_EQ(names(), QStringList(u"a.xml"_s));
    click("boxAll");
    EXPECT_EQ(names().size(), 2);
    clickRow(1, XmlFileList::date);
    EXPECT_FALSE(find<QCheckBox>("boxAll").isChecked());
    click("btnImport");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(ImportFileDialogTest, anotherFolderBeginsAnew) {
    dialog.show();
    waitUntilRead();
    click("boxAll");
    click("btnFolder");
    EXPECT_EQ(names().size(), 2) << "no folder was chosen";
    folders.folder = folder.filePath(u"empty"_s);
    click("btnFolder");
    EXPECT_TRUE(find<QWidget>("noFiles").isVisible());
    EXPECT_TRUE(dialog.chosenFiles().isEmpty());
    EXPECT_FALSE(find<QWidget>("btnImport").isEnabled());
    folders.folder = folder.path();
    click("btnFolder");
    waitUntilRead();
    EXPECT_EQ(row(1).at(XmlFileList::readings), u"2"_s);
    EXPECT_TRUE(dialog.chosenFiles().isEmpty());
}

TEST_F(ImportFileDialogTest, filesThatAreGivenAreChosenAsFarAsTheyCanBe) {
    QStringList given;
    for (const char* name : {"damaged.xml", "b.xml", "empty/none.xml"})
        given += folder.filePath(QLatin1StringView(name));
    ImportFileDialog list(folders, folder.path(), {.files = given, .remark = u"<b>not these"_s}, nullptr);
    list.show();
    waitFor([&] { return !list.findChild<XmlFileList*>()->isReading(); });
    EXPECT_EQ(list.chosenFiles(), QStringList(given.at(1)));
    const auto& remark = *list.findChild<QLabel*>(u"lblRemark"_s);
    EXPECT_TRUE(remark.isVisible() && remark.textFormat() == Qt::PlainText);
    EXPECT_EQ(list.findChild<QLabel*>(u"lblFolder"_s)->accessibleName(), qtTrId("importDropped"));
    folders.folder = folder.path();
    QTest::mouseClick(list.findChild<QWidget*>(u"btnFolder"_s), Qt::LeftButton);
    EXPECT_FALSE(remark.isVisible());
    EXPECT_TRUE(list.chosenFiles().isEmpty());
}

TEST_F(ImportFileDialogTest, theChooserRemembersItsFolderAndReportsACancel) {
    SelectFolderController chooser;
    const auto inDialog = [](const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, qApp, [act] { act(*QApplication::activeModalWidget()); });
    };
    inDialog([this](QWidget& box) {
        dynamic_cast<QFileDialog&>(box).setDirectory(folder.path());
        dynamic_cast<QFileDialog&>(box).selectFile(folder.path());
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_EQ(chooser.chooseFolder(nullptr, u"title"_s), folder.path());
    inDialog([this](QWidget& box) {
        waitFor([&] { return !box.findChild<XmlFileList*>()->isReading(); });
        QTest::mouseClick(box.findChild<QWidget*>(u"boxAll"_s), Qt::LeftButton);
        QTest::mouseClick(box.findChild<QWidget*>(u"btnImport"_s), Qt::LeftButton);
    });
    EXPECT_EQ(chooser.chooseFiles(nullptr, {}).size(), 3);
    inDialog([](QWidget& box) {
        QTest::mouseClick(box.findChild<QWidget*>(u"boxAll"_s), Qt::LeftButton);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_TRUE(chooser.chooseFiles(nullptr, {}).isEmpty());
    inDialog([this](QWidget& box) {
        dynamic_cast<QFileDialog&>(box).setDirectory(folder.filePath(u"empty"_s));
        dynamic_cast<QFileDialog&>(box).selectFile(u"report"_s);
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_EQ(chooser.choosePdf(nullptr, u"title"_s, u"x"_s), folder.filePath(u"empty/report.pdf"_s));
    inDialog([](QWidget& box) {
        EXPECT_TRUE(box.findChild<QWidget*>(u"noFiles"_s)->isVisible()) << "the same folder";
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_TRUE(chooser.chooseFiles(nullptr, {}).isEmpty());
}

} // namespace zel
