#include "cli/CliTest.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class ReportTest : public CliTest {
protected:
    ReportTest() {
        addPatient(u"M1"_s);
        EXPECT_EQ(zelWith(planM1, {u"download"_s, u"--patient"_s, u"M1"_s}).status, 0);
    }
    Outcome report(const QString& section, const QStringList& more = {}) {
        return zel(
            QStringList{u"report"_s, u"--patient"_s, u"M1"_s, u"--section"_s, section, u"--output"_s, output}
            + more);
    }
    [[nodiscard]] QByteArray written() const {
        QFile file(output);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] std::string writtenText() const {
        QProcess process;
        process.start(u"pdftotext"_s, {output, u"-"_s});
        process.waitForFinished();
        return process.readAllStandardOutput().toStdString();
    }
    const QString output = folder.filePath(u"report.pdf"_s);
};

TEST_F(ReportTest, everySectionIsWritten) {
    const Outcome outcome = report(u"all"_s, {u"--practitioner"_s, u"--paper"_s, u"Letter"_s});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "written: " + output.toStdString() + '\n');
    EXPECT_EQ(outcome.err, "Empty, so not in the report: comment\n");
    EXPECT_TRUE(written().startsWith("%PDF-"));
    // No comments: eight sections of one page each, three of them upright.
    EXPECT_EQ(written().count("/MediaBox [0 0 792.000000 612.000000]"), 5);
    EXPECT_EQ(written().count("/MediaBox [0 0 612.000000 792.000000]"), 3);
    const char* const fromZEL = "/Author <feff005a0045004c>";
    EXPECT_TRUE(written().contains(fromZEL)) << "nobody has filled in the practitioner";
    ASSERT_EQ(
        zel({u"settings"_s, u"--set"_s, u"PhysicianAddress=Practitioner (Physician)\nDr. Moreau"_s}).status,
        0);
    ASSERT_EQ(report(u"table"_s, {u"--practitioner"_s}).status, 0);
    EXPECT_TRUE(written().contains("/Author <feff00440072002e")) << "Dr.";
    const Outcome alone = report(u"table"_s);
    ASSERT_EQ(alone.status, 0);
    EXPECT_EQ(alone.err, "");
    EXPECT_TRUE(written().contains(fromZEL));
}

TEST_F(ReportTest, thePaperIsTheUsualOneUnlessItIsNamed) {
    for (const auto& [usual, named, box] : {std::tuple{QPageSize::A4, "", "595.000000 842"},
                                            {QPageSize::Letter, "", "612.000000 792"},
                                            {QPageSize::Letter, "A4", "595.000000 842"}}) {
        usualPaper = QPageSize(usual);
        const QString paper = QLatin1StringView(named);
        ASSERT_EQ(
            report(u"table"_s, paper.isEmpty() ? QStringList() : QStringList{u"--paper"_s, paper}).status, 0);
        EXPECT_TRUE(written().contains(QByteArray("/MediaBox [0 0 ") + box)) << named;
    }
}

TEST_F(ReportTest, whatCannotBePrintedIsRefusedAndLeavesNoFile) {
    struct Refusal {
        QString section;
        QStringList more;
        int status;
        const char* words;
    };
    const Refusal table[] = {
        {u"comment"_s, {}, 1, "nothing to print"},
        {u"table"_s, {u"--from"_s, u"2030-01-01"_s, u"--to"_s, u"2030-02-01"_s}, 1, "nothing to print"},
        {u"table,chart"_s, {}, 2, "no section 'chart'"},
        {u"table"_s, {u"--last"_s, u"week"_s}, 2, "not 'week'"},
        {u"table"_s, {u"--am"_s, u"--pm"_s}, 2, "--am or --pm"},
        {u"table"_s, {u"--paper"_s, u"A5"_s}, 2, "not 'A5'"},
        {u"summary"_s, {u"--rule"_s, u"jnc"_s}, 2, "no rule 'jnc'"},
        {u"table"_s, {u"--from"_s, u"1.2.2026"_s}, 2, "--from"},
    };
    for (const Refusal& row : table) {
        const Outcome outcome = report(row.section, row.more);
        EXPECT_EQ(outcome.status, row.status) << row.words;
        EXPECT_THAT(outcome.err, testing::HasSubstr(row.words));
        EXPECT_FALSE(QFile::exists(output)) << row.words;
    }
}

TEST_F(ReportTest, theSummaryIsAveragedByTheRule) {
    for (const auto& [rule, week, threshold] : {std::tuple("", "Measuring week (ESH)", " of 135/85"),
                                                {"esh", "Measuring week (ESH)", " of 135/85"},
                                                {"nice", "Measuring week (NICE)", " of 135/85"},
                                                {"aha", "Measuring week (AHA)", " of 130/80"}}) {
        const QStringList asked{u"--rule"_s, QLatin1String(rule)};
        ASSERT_EQ(report(u"summary"_s, *rule ? asked : QStringList()).status, 0);
        const std::string text = writtenText();
        EXPECT_THAT(text, testing::AllOf(testing::HasSubstr(week), testing::HasSubstr(threshold)));
    }
}

TEST_F(ReportTest, daysBesideTheReadingsAreNoReversedPeriod) {
    addPatient(u"NONE"_s);
    struct Row {
        const char *ID, *option, *period, *week;
    };
    for (const Row& row :
         {Row{"M1", "--from=2026-12-01", "From 01/12/2026 to 01/12/2026", "25/11/2026 – 01/12/2026"},
          Row{"M1", "--to=2026-10-05", "From 05/10/2026 to 05/10/2026", "29/09/2026 – 05/10/2026"},
          Row{"M1", "--from=2026-11-03", "From 03/11/2026 to 03/11/2026", "28/10/2026 – 03/11/2026"},
          Row{"NONE", "--from=2026-12-01", "No dated readings", "No readings in this week"},
          Row{"NONE", "--to=2025-10-05", "No dated readings", "No readings in this week"}}) {
        QStringList arguments{u"report"_s, u"--section=summary"_s, u"--output"_s, output};
        arguments += {u"--patient"_s, QLatin1String(row.ID), QLatin1String(row.option)};
        ASSERT_EQ(zel(arguments).status, 0);
        EXPECT_THAT(writtenText(),
                    testing::AllOf(testing::HasSubstr(row.period), testing::HasSubstr(row.week)));
    }
}

TEST_F(ReportTest, theTrendHasMorningsAndEveningsApartWhereAsked) {
    for (const bool isApart : {false, true}) {
        ASSERT_EQ(report(u"trend"_s, isApart ? QStringList{u"--apart"_s} : QStringList()).status, 0);
        const std::string text = writtenText();
        EXPECT_EQ(text.find("SYS morning") != std::string::npos, isApart);
        EXPECT_EQ(text.find("DIA evening") != std::string::npos, isApart);
    }
}

TEST_F(ReportTest, limitsThatWereChosenButCannotBeReadAreTold) {
    QFile choice(QFileInfo(dataFile()).path() + u"/View.json"_s);
    for (const auto& [text, told] :
         {std::pair(R"({"highFrom": "own", "ownSystolic": 150, "ownDiastolic": 95})", ""),
          {R"({"highFrom": "own", "ownSystolic": 95, "ownDiastolic": 150})", "135/85 mmHg"}}) {
        ASSERT_TRUE(choice.open(QIODevice::WriteOnly | QIODevice::Truncate));
        choice.write(text);
        choice.close();
        const Outcome outcome = report(u"table"_s);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.err.empty(), std::string(told).empty()) << outcome.err;
        EXPECT_THAT(outcome.err, testing::HasSubstr(told));
    }
}

TEST_F(ReportTest, neverReplacesTheDataFile) {
    const QByteArray before = data();
    const Outcome outcome =
        zel({u"report"_s, u"--patient"_s, u"M1"_s, u"--section"_s, u"table"_s, u"--output"_s, dataFile()});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(data(), before);
}

} // namespace

} // namespace zel
