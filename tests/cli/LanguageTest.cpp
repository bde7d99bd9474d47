// What is stored and what scripts read is the same in every language.
#include "cli/CliTest.h"
#include "store/Languages.h"
#include "store/ManualReading.h"
#include "support/RealTexts.h"

#include <QDir>
#include <QFile>

#include <map>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

using Content = std::map<std::string, std::string>;

/// A life of a data file: its patients, readings of all kinds, settings and exports.
class Life final : public CliTest {
public:
    Content live() {
        plug(planM1);
        run({u"patients"_s, u"--add"_s, u"--id"_s, u"A1"_s, u"--family-name"_s, u"Łuczak"_s,
             u"--given-names"_s, u"Zoë"_s});
        run({u"settings"_s, u"--set"_s, u"EraseRecAfterReading=0"_s});
        type(u"2026-11-02"_s, u"19:30"_s, u"120"_s, u"80"_s, u"66"_s); // which the monitor brings, too
        const QString typed = type(u"2026-11-01"_s, u"08:00"_s, u"141"_s, u"92"_s, u"70"_s);
        run({u"download"_s, u"--patient"_s, u"A1"_s, u"--any-monitor"_s});
        run({u"readings"_s, u"--patient"_s, u"A1"_s, u"--exclude"_s, typed, u"--reason"_s,
             u"cuff, \"loose\""_s});
        const QString out = folder.filePath(u"out"_s);
        QDir().mkpath(out);
        run({u"export-xml"_s, out});
        run({u"export-csv"_s, out, u"--patient"_s, u"A1"_s});
        run({u"export-table"_s, out});
        run({u"readings"_s, u"--patient"_s, u"A1"_s, u"--numbers"_s});
        run({u"statistics"_s, u"--patient"_s, u"A1"_s});
        run({u"settings"_s});
        run({u"patients"_s});
        for (const QString& name : QDir(out).entryList(QDir::Files))
            files[name.toStdString()] = content(out + u'/' + name);
        files["data"] = data().toStdString();
        return files;
    }
    void TestBody() override {}

private:
    /// \return the reading's number
    QString type(const QString& date, const QString& time, const QString& sys, const QString& dia,
                 const QString& pulse) {
        return QString::fromStdString(
                   run({u"readings"_s, u"--patient"_s, u"A1"_s, u"--add"_s, u"--date"_s, date, u"--time"_s,
                        time, u"--sys"_s, sys, u"--dia"_s, dia, u"--pulse"_s, pulse}))
            .section(u' ', 1)
            .trimmed();
    }
    /// Keeps what was printed, but for the folder's own name.
    std::string run(const QStringList& arguments) {
        const Outcome outcome = zel(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        files["zel " + arguments.first().toStdString() + ' ' + std::to_string(files.size())] =
            QString::fromStdString(outcome.out).remove(folder.path()).toStdString();
        return outcome.out;
    }
    static std::string content(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : "not read";
    }

    Content files;
};

TEST(LanguageOfFilesTest, DataFileExportsAndPrintedFiguresStayAsTheyAre) {
    const Content english = Life().live();
    EXPECT_THAT(english.at("data"), HasSubstr("<Excluded>measured by the monitor, too</Excluded>"));
    EXPECT_THAT(english.at("A1.csv"), HasSubstr("excluded: measured by the monitor, too"));
    EXPECT_THAT(english.at("A1.csv"), HasSubstr("Sex,Female,"));
    for (const Language& language : languages()) {
        const ProgramTexts texts(language);
        EXPECT_EQ(Life().live(), english) << language.tag.data();
    }
    const MarkedTexts texts; // also what the tables happen to say alike
    EXPECT_EQ(Life().live(), english);
}

/// But not by a language that is chosen after the reading was left out.
TEST(LanguageOfFilesTest, AReasonOfTheProgramsOwnIsShownInTheLanguageOfTheDay) {
    ReadingModel reading;
    reading.exclusion = measuredReason.toString();
    const ProgramTexts texts(*languageFor(u"de"_s));
    const QString shown = describeExclusion(reading);
    EXPECT_NE(shown, measuredReason);
    EXPECT_EQ(exclusionReason(u' ' + shown + u' '), measuredReason)
        << "kept in a dialog, it stays the same reason";
    EXPECT_EQ(exclusionReason(u"too loose"_s), u"too loose"_s);
    EXPECT_EQ(describeRemark(reading), qtTrId("remarkExcluded").arg(shown));
}

TEST_F(CliTest, MessagesAreInTheLanguage) {
    const std::pair<const char*, const char*> cases[]{
        {"de", "Aufruf: zel"}, {"fr", "Usage\u202F: zel"}, {"zh_TW", "用法：zel"}};
    for (const auto& [tag, words] : cases) {
        const ProgramTexts texts(*languageFor(QString::fromLatin1(tag)));
        EXPECT_THAT(zel({u"--help"_s}).out, testing::StartsWith(QString::fromUtf8(words).toStdString()))
            << tag;
    }
}

} // namespace

} // namespace zel
