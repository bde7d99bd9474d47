#include "cli/CliTest.h"
#include "support/Traces.h"

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

TEST_F(CliTest, AWorkingDayLeavesNoTraceOfThePatientsAndNothingToOthers) {
    const QStringList texts{u"QXZ-771-04"_s, u"Wolpertinger"_s, u"Xaverine"_s, u"1937"_s, u"253"_s, u"197"_s};
    const QTemporaryDir around;
    const QByteArray temporary = qgetenv("TMPDIR");
    qputenv("TMPDIR", around.path().toUtf8());
    const Withheld nothing(0);
    const DefaultLog log;
    const QString out = folder.filePath(u"out"_s);
    QDir().mkdir(out);
    plug(R"({"model": "41", "id": "QXZ-771-04", "records": [
        {"time": "2026-11-02T07:05", "flag": "0", "sys": 253, "dia": 197, "pulse": 71}]})");
    const QStringList patient{u"--patient"_s, texts[0]};
    for (const QStringList& command :
         {QStringList{u"patients"_s, u"--add"_s, u"--id"_s, texts[0], u"--family-name"_s, texts[1],
                      u"--given-names"_s, texts[2]},
          QStringList{u"monitor"_s}, QStringList{u"download"_s} + patient,
          QStringList{u"readings"_s} + patient, QStringList{u"statistics"_s} + patient,
          QStringList{u"export-xml"_s, out}, QStringList{u"export-csv"_s, out} + patient,
          QStringList{u"export-table"_s, out},
          QStringList{u"report"_s, u"--section"_s, u"all"_s, u"--output"_s, out + u"/report.pdf"_s} + patient,
          QStringList{u"settings"_s, u"--set"_s, u"DateFormat=yyyy mm dd"_s},
          QStringList{u"backup"_s, u"create"_s}}) {
        const Outcome done = zel(command);
        EXPECT_EQ(done.status, 0) << done.err;
        EXPECT_THAT(done.err, testing::Not(HasSubstr(texts[1].toStdString())));
    }
    QFile::remove(dataFile());
    EXPECT_EQ(zel({u"import"_s, out + u"/QXZ-771-04.xml"_s}).status, 0);
    EXPECT_EQ(zel({u"import"_s, out + u"/QXZ-771-04.xml"_s}).status, 1) << "it is known by now";
    qputenv("TMPDIR", temporary);
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 4);
    EXPECT_FALSE(DefaultLog::lines().isEmpty());
    for (const QString& place : {folder.path(), around.path()}) // whose names are random
        DefaultLog::lines().replaceInStrings(place, QString());
    EXPECT_EQ(DefaultLog::telling(texts).join(u'|').toStdString(), "");
    EXPECT_EQ(traces(around.path(), texts).join(u'|').toStdString(), "");
    EXPECT_EQ(QDir(around.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList());
    EXPECT_EQ(openToOthers(folder.filePath(u"home/Library"_s)).join(u'|').toStdString(), "");
    EXPECT_EQ(openToOthers(out).join(u'|').toStdString(), "");
}

TEST_F(CliTest, ADataFileThatOthersCanReadIsToldAndMendedOnRequest) {
    addPatient(u"A1"_s);
    const std::string path = dataFile().toStdString();
    const std::string before = data().toStdString();
    EXPECT_EQ(zel({u"privacy"_s}).out, "private\n");
    const auto open = [](const QString& at, mode_t mode) {
        EXPECT_EQ(::chmod(QFile::encodeName(at).constData(), mode), 0);
    };
    for (QString at = QFileInfo(dataFile()).path(); at.size() >= folder.path().size();
         at = QFileInfo(at).path())
        open(at, 0755);
    open(dataFile(), 0644);
    const std::string told = "Other users of this computer can read " + path;
    EXPECT_THAT(zel({u"patients"_s}).err, HasSubstr(told));
    const Outcome seen = zel({u"privacy"_s});
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.out, "readable by others: " + path + '\n');
    const Outcome mended = zel({u"privacy"_s, u"--mend"_s});
    EXPECT_EQ(mended.status, 0) << mended.err;
    EXPECT_EQ(mended.out, "private\n");
    EXPECT_EQ(zel({u"patients"_s}).err, "");
    EXPECT_EQ(data().toStdString(), before);
}

} // namespace
} // namespace zel
