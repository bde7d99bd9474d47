#include "DataStoreTest.h"
#include "support/LogOf.h"

#include <QRegularExpression>

namespace zel {
namespace {

TEST_F(DataStoreTest, LogsItsStepsInTheSameWordsAsEver) {
    const auto loadIn = [this](const QString& otherHome, const QString& otherProgram) {
        std::ignore = DataStore{{otherHome, otherProgram, otherProgram}, clock}.load();
    };
    const struct {
        const char* what;
        QByteArray records; ///< null: no file
        std::function<void()> act;
        const char* lines;
    } cases[] = {
        {"the first start",
         {},
         [&] { std::ignore = store.load(); },
         "File successfully written to ./.target|~/ZEL.xml  file  does not  exists|"
         "copy from ./ZEL_pad.xml to ~/ZEL.xml success|xml data loaded from filepath:~/ZEL.xml|"
         "?itemNodes = 0|reading itemNodes count = 0|?isSelected FALSE"},
        {"no template",
         {},
         [&] { loadIn(home.path(), program.filePath(u"no"_s)); },
         "Error writing file: No such file or directory|~/ZEL.xml  file  does not  exists|"
         "copy from ./no/ZEL_pad.xml to ~/ZEL.xml fail|!nodesForXPath failed "},
        {"an older version's file, and a home that is no folder",
         {},
         [&] {
             write(program.filePath(u"ZEL.xml"_s), templateFile);
             loadIn(program.filePath(u"ZEL_pad.xml"_s), program.path());
         },
         "./ZEL_pad.xml/ZEL.xml  file  does not  exists|"
         "!The data file of an older version, ./ZEL.xml, could not be moved|"
         "copy from ./ZEL_pad.xml to ./ZEL_pad.xml/ZEL.xml fail|!nodesForXPath failed "},
        {"records",
         "<SystemSetting/><Patient><ID>A</ID></Patient><MeasureRec><ID>A</ID><RecID>7</RecID><ReadingDate>"
         "2019-03-22T08:00:00+01:00</ReadingDate></MeasureRec><MeasureRec><ID>A</ID><RecID>8</RecID>"
         "<ReadingDate>soon</ReadingDate></MeasureRec><MeasureRec/><Comment><ID>A</ID><CommentID>9</"
         "CommentID>"
         "<BeginDate>2019-03-22T00:00:00+01:00</BeginDate><EndDate>2019-03-23T23:59:59+01:00</EndDate>"
         "<Comment>ill</Comment></Comment><Comment/><DataTransferLog><ID>B</ID></DataTransferLog>"
         "<DataTransferLog/>",
         [&] {
             std::ignore = store.loadXML();
             store.setCurrentID(u"A"_s);
             store.setSelectedComment(u"9"_s);
         },
         "~/ZEL.xml  file  does  exists|xml data loaded from filepath:~/ZEL.xml|"
         "?new Mutable Array reading for ID A |?XML data error: soon|"
         "?error no RecID\n|!error: add reading for empty ID|"
         "?new Mutable Array comment for ID A|?error no RecID\n|!error: add comment for empty ID|"
         "?error no RecID\n|?new Mutable Array data log for ID B|"
         "?error no RecID\n|!error: add data log for empty ID|?itemNodes = 1|reading itemNodes count = 2|"
         "?ID A|?comment period 2019/03/22 2019/03/23|"
         "?readingModel comment:ill  date:2019/03/22 08:00 begin:YES end:NO|"
         "?isSelected FALSE|?isSelected YES"},
        {"a download", "<SystemSetting/><Patient><ID>A</ID></Patient>",
         [&] {
             store.setCurrentID(u"A"_s);
             std::ignore = store.newDataTransfer({reading(120)});
         },
         "xml data loaded from filepath:~/ZEL.xml|?itemNodes = 1|reading itemNodes count = 0|"
         "add new reading......|write document out...|~/ZEL.xml  file  does  exists|"
         "xml data loaded from filepath:~/ZEL.xml|?new Mutable Array data log for ID A|"
         "?new Mutable Array reading for ID A |?itemNodes = 1|reading itemNodes count = 1|?ID A|"
         "?isSelected FALSE|add new reading......1|add new reading......2"},
        {"nobody to delete", "<SystemSetting/>", [&] { std::ignore = store.deleteXMLPatient(u"A"_s); },
         "xml data loaded from filepath:~/ZEL.xml|?delete node ID:A error, no node found = |"
         "?no comment to be deleted for ID: A|?no measure to be deleted for ID: A|write document out..."},
        {"a comment that has gone", "<SystemSetting/>",
         [&] {
             CommentModel comment;
             comment.CommentID = u"7"_s;
             std::ignore = store.saveCommentToXML(comment);
         },
         "xml data loaded from filepath:~/ZEL.xml|?nodesForXPath failed 7|"
         "~/ZEL.xml  file  does  exists|xml data loaded from filepath:~/ZEL.xml|?itemNodes = 0|reading "
         "itemNodes count = 0|?isSelected FALSE"},
        {"a damaged file", "<",
         [&] {
             std::ignore = store.loadXML();
             std::ignore = store.beginExport();
             std::ignore = XmlFile::read(path);
             write(home.filePath(u"B.xml"_s), "<ZEL><Patient><ID>B</ID></Patient></ZEL>");
             std::ignore = store.importXml(home.filePath(u"B.xml"_s));
         },
         "~/ZEL.xml  file  does  exists|!nodesForXPath failed XmlErrorNearLine|"
         "!_export  create xml doc failed|?load xml for ~/ZEL.xml error|!_export  create xml doc failed|"
         "?itemNodes = 1|~/ZEL.xml  file  does  exists|!nodesForXPath failed XmlErrorNearLine|!Could not "
         "write document out...|!import  create xml doc failed"},
        {"an export, a second one to the same place, and a folder that goes", "<Patient><ID>A</ID></Patient>",
         [&] {
             QDir folder{home.filePath(u"out"_s)};
             folder.mkpath(u"."_s);
             const auto all = store.beginExport();
             for (int time = 1; time <= 2; ++time)
                 std::ignore = all->writeXml(u"A"_s, folder.path(), Replace::no);
             folder.removeRecursively();
             std::ignore = all->finish();
         },
         "xml data loaded from filepath:~/ZEL.xml|write document out...|!Could not write document out...|"
         "!Could not flush the folder of an export"},
        {"texts of patients",
         {},
         [&] {
             std::ignore = PatientModel{}.convertAndSetHeight(u"5"_s, {});
             std::ignore = toDoubleQuote(u"5\""_s);
         },
         "?convertAndSetHeight parameter error|?before: 5\" after: 5\"\""},
    };
    for (const auto& each : cases) {
        QFile::remove(path);
        if (!each.records.isNull()) dataFile(each.records);
        const QString lines =
            QString::fromStdString(logOf(each.act))
                .replace(home.path(), u"~"_s)
                .replace(program.path(), u"."_s)
                .remove(u"/Library/Application Support/ZELMac"_s)
                .remove(QRegularExpression{u"\\?XML folder:[^|]+\\||\\|\\?XML folder:[^|]+$"_s}); // many
        EXPECT_EQ(lines.toStdString(), each.lines) << each.what;
    }
}

} // namespace
} // namespace zel
