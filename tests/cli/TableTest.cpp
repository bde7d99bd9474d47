#include "cli/CliTest.h"

#include <QDir>
#include <QFile>

namespace zel {

using namespace Qt::StringLiterals;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

/// Two patients, one with the monitor's four readings.
struct CliTableTest : CliTest {
    QString out = folder.filePath(u"out"_s);
    QString file = folder.filePath(u"their.csv"_s);

    CliTableTest() {
        QDir().mkdir(out);
        addPatient(u"A1"_s);
        addPatient(u"B/2"_s);
        plug(planM1);
        EXPECT_EQ(zel({u"download"_s, u"--patient"_s, u"A1"_s, u"--any-monitor"_s}).status, 0);
    }
    void write(const QByteArray& content) const {
        QFile made(file);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly) && made.write(content) == content.size());
    }
    [[nodiscard]] std::string line(const QString& name) const {
        return (u"written: "_s + out + u'/' + name + u'\n').toStdString();
    }
    static std::string counts(int taken, int refused, int patients, int readings, int known,
                              int leftOut = 0) {
        const auto number = [](const char* key, int count) { return key + std::to_string(count) + '\n'; };
        return number("taken: ", taken) + number("refused: ", refused) + number("patients: ", patients)
               + number("readings: ", readings) + "comments: 0\n" + number("known: ", known)
               + number("left-out: ", leftOut);
    }
    static QStringList theirs(const QStringList& more = {}) {
        return QStringList{u"--patient"_s, u"A1"_s, u"--columns"_s, u"date=Day,sys=S,dia=D,pulse=P"_s} + more;
    }
};

TEST_F(CliTableTest, GoesIntoAFolderOrAFileAndComesBack) {
    const Outcome written = zel({u"export-table"_s, out});
    EXPECT_EQ(written.status, 0) << written.err;
    EXPECT_EQ(written.out, line(u"A1.table.csv"_s) + line(u"B%2F2.table.csv"_s));
    const Outcome again = zel({u"export-table"_s, out, u"--patient"_s, u"A1"_s});
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.err, HasSubstr("--force"));
    EXPECT_EQ(zel({u"export-table"_s, out, u"--force"_s}).out, written.out);
    const Outcome all = zel({u"export-table"_s, out + u"/all.csv"_s});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.out, line(u"all.csv"_s));
    EXPECT_EQ(all.err,
              "zel export-table: 1 patient has no line in the table: no reading is stored for this one, "
              "as for anybody without an ID.\n");
    EXPECT_EQ(zel({u"export-table"_s, dataFile(), u"--force"_s}).status, 1) << "no name of a table";
    EXPECT_THAT(zel({u"export-table"_s, out + u"/none"_s}).err, HasSubstr("no folder"));
    EXPECT_THAT(zel({u"export-table"_s, out, u"--patient"_s, u"nobody"_s}).err, HasSubstr("'nobody'"));

    const QByteArray before = data();
    const Outcome known = zel({u"import"_s, out + u"/all.csv"_s});
    EXPECT_EQ(known.status, 1);
    EXPECT_EQ(known.out, counts(0, 1, 0, 0, 0));
    EXPECT_THAT(known.err, HasSubstr("“A1” is already"));
    EXPECT_THAT(known.err, HasSubstr("--patient ID adds"));
    EXPECT_EQ(zel({u"import"_s, out + u"/all.csv"_s, u"--patient"_s, u"A1"_s}).out, counts(1, 0, 0, 0, 4));
    EXPECT_EQ(data(), before);

    const QStringList list{u"readings"_s, u"--patient"_s, u"A1"_s, u"--numbers"_s};
    const std::string readings = zel(list).out;
    QFile::remove(dataFile());
    const Outcome taken = zel({u"import"_s, out + u"/all.csv"_s, out + u"/B%2F2.table.csv"_s});
    EXPECT_EQ(taken.status, 1);
    EXPECT_EQ(taken.out, counts(1, 1, 1, 4, 0));
    EXPECT_THAT(taken.err, HasSubstr("no reading"));
    EXPECT_THAT(taken.err,
                HasSubstr("the 1 new patient is stored as female, non-smoker and without diabetes"));
    EXPECT_EQ(zel(list).out, readings);
}

TEST_F(CliTableTest, AnotherProgramsTableIsTakenWholeOrNotAtAll) {
    const QByteArray before = data();
    write("Day;S;D;P\n2026-11-20 07:05;131;84;66\n03/04/2026 07:05;131;84;66\n2026-11-20;13;84\n");
    const Outcome refused = zel(QStringList{u"import"_s, file} + theirs());
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, counts(0, 1, 0, 0, 0));
    EXPECT_THAT(refused.err,
                HasSubstr("\nLine 3: “03/04/2026 07:05” is not written as 2026-11-21 is. Say with --dates"));
    EXPECT_THAT(refused.err, EndsWith("\nLine 4: It has 3 cells, and the line of titles 4.\n"));
    EXPECT_THAT(zel({u"import"_s, file}).err, HasSubstr("--columns says"));
    EXPECT_THAT(zel({u"import"_s, file, u"--patient"_s, u"A1"_s}).err, HasSubstr("tables of readings"));
    EXPECT_EQ(zel({u"import"_s, file, u"--patient"_s, u"nobody"_s}).status, 1);
    EXPECT_EQ(data(), before);

    write("Day;S;D;P\n2026-11-20 07:05;131;84;66\n03/04/2026 07:05;131;84;66\n");
    const QStringList import = QStringList{u"import"_s, file} + theirs({u"--dates"_s, u"dmy"_s});
    EXPECT_EQ(zel(import).out, counts(1, 0, 0, 2, 0));
    EXPECT_EQ(zel(import).out, counts(1, 0, 0, 0, 2));
    EXPECT_THAT(zel({u"readings"_s, u"--patient"_s, u"A1"_s}).out,
                HasSubstr("\n2026-04-03,07:05,131,84,66,99,47,No,N/A\n"));
}

TEST_F(CliTableTest, TypedReadingsThatATableHasFromAMonitorAreLeftOutAndCounted) {
    const QString all = out + u"/all.csv"_s;
    EXPECT_EQ(zel({u"export-table"_s, all}).status, 0);
    const std::string line = zel({u"readings"_s, u"--patient"_s, u"A1"_s}).out;
    const QStringList cells = QString::fromStdString(line).section(u"2026-11-02,19:30,"_s, 1).split(u',');
    QByteArray content = data();
    const qsizetype first = content.indexOf("<MeasureRec>"), end = content.lastIndexOf("</MeasureRec>") + 13;
    setData(content.remove(first, end - first));
    ASSERT_EQ(
        zel({u"readings"_s, u"--patient"_s, u"A1"_s, u"--add"_s, u"--date"_s, u"2026-11-02"_s, u"--time"_s,
             u"19:30"_s, u"--sys"_s, cells[0], u"--dia"_s, cells[1], u"--pulse"_s, cells[2]})
            .status,
        0);
    const Outcome taken = zel({u"import"_s, all, u"--patient"_s, u"A1"_s});
    EXPECT_EQ(taken.out, counts(1, 0, 0, 4, 0, 1));
    EXPECT_EQ(taken.err,
              "zel import: 1 reading that was typed in counts nowhere from now on: the table has the "
              "same one from a monitor.\n")
        << "nobody is new";
}

TEST_F(CliTableTest, OptionsThatMakeNoSenseAreWrongUsage) {
    const QString all = u"date=D,sys=S,dia=I,pulse=P"_s;
    const std::pair<QStringList, const char*> cases[] = {
        {{u"--columns"_s, all}, "--patient is missing"},
        {{u"--patient"_s, u"A1"_s, u"--dates"_s, u"dmy"_s}, "--columns is missing"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all, u"--dates"_s, u"dym"_s}, "not 'dym'"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, u"date=D,sys=S,dia=I"_s}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all + u",date=E"_s}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all + u",note=N"_s}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all + u",time=D"_s}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all + u",time="_s}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, all + u"\n"_s + all}, "--columns takes"},
        {{u"--patient"_s, u"A1"_s, u"--columns"_s, u"\"date=D"_s}, "--columns takes"},
    };
    for (const auto& [options, reason] : cases) {
        const Outcome outcome = zel(QStringList{u"import"_s, file} + options);
        EXPECT_EQ(outcome.status, 2) << options.last().toStdString();
        EXPECT_THAT(outcome.err, HasSubstr(reason));
    }
    EXPECT_EQ(zel({u"export-table"_s}).status, 2);
}

} // namespace

} // namespace zel
