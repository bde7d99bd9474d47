#include "cli/CliTest.h"
#include "cli/Commands.h"
#include "cli/ProgressLine.h"

#include <sstream>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

TEST_F(CliTest, BackupsAreListedMadeAndGoneBackTo) {
    const QStringList list{u"backup"_s, u"list"_s};
    const std::string heading = "name,bytes,patients,readings,last-reading\n";
    EXPECT_EQ(zel(list).out, heading) << "none yet";
    addPatient(u"A"_s);
    addPatient(u"B"_s);
    const QString backups = dataFile().section(u'/', 0, -2) + u"/Backups/"_s;
    const Outcome made = zel({u"backup"_s, u"create"_s});
    EXPECT_EQ(made.out, "written: " + (backups + u"ZEL-2026-11-21-090000.xml\n"_s).toStdString());
    QFile damaged{backups + u"ZEL-2026-10-01.xml"_s};
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("<ZEL>") == 5);
    damaged.close();
    EXPECT_THAT(zel(list).out, testing::MatchesRegex(
                                   heading
                                   + "ZEL-2026-11-21-090000.xml,[0-9]+,2,0,\nZEL-2026-11-21.xml,[0-9]+,0,0,\n"
                                     "ZEL-2026-10-01.xml,5,unreadable,,\n"));
    const QByteArray before = data();
    EXPECT_EQ(zel({u"backup"_s, u"restore"_s, u"ZEL-2026-10-01.xml"_s}).status, 1);
    EXPECT_EQ(zel({u"backup"_s, u"restore"_s, u"ZEL-2025-01-01.xml"_s}).status, 1);
    EXPECT_EQ(data(), before);
    setData("<ZEL>");
    const Outcome restored = zel({u"backup"_s, u"restore"_s, u"ZEL-2026-11-21-090000.xml"_s});
    EXPECT_EQ(restored.out, "restored: ZEL-2026-11-21-090000.xml\nkept: ZEL-2026-11-21-090000-damaged.xml\n");
    EXPECT_EQ(data(), before);
}

TEST_F(CliTest, PatientsAreListedByNameAsCsv) {
    const auto add = [this](const QString& ID, const QString& family, const QString& given) {
        return zel({u"patients"_s, u"--add"_s, u"--id"_s, ID, u"--family-name"_s, family, u"--given-names"_s,
                    given});
    };
    EXPECT_EQ(zel({u"patients"_s}).out, "id,family-name,given-names\n");
    EXPECT_EQ(add(u"2"_s, u"Müller"_s, u"Jörg, \"Jo\""_s).status, 0);
    EXPECT_EQ(add(u"11 letters."_s, u"Adams"_s, u"日本 😀"_s).status, 0);
    EXPECT_EQ(zel({u"patients"_s}).out, "id,family-name,given-names\n"
                                        "11 letters.,Adams,日本 😀\n"
                                        "2,Müller,\"Jörg, \"\"Jo\"\"\"\n");

    setData(data().replace("Adams", "Ad\nams").replace("Jörg", "J&#13;rg"));
    EXPECT_EQ(zel({u"patients"_s}).out, "id,family-name,given-names\n"
                                        "11 letters.,\"Ad\nams\",日本 😀\n"
                                        "2,Müller,\"J\rrg, \"\"Jo\"\"\"\n");

    const QByteArray before = data();
    const Outcome again = add(u"2"_s, u"Other"_s, u"Name"_s);
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.err, HasSubstr("'2'"));
    EXPECT_EQ(data(), before);
}

TEST_F(CliTest, SurroundingsThatFailAreTold) {
    std::ostringstream out;
    std::ostringstream err;
    cli::Surroundings around{.out = out, .err = err, .clock = clock, .paths = {}, .attach = {}};
    EXPECT_EQ(cli::run({u"patients"_s}, around), 1);
    EXPECT_THAT(err.str(), HasSubstr("HOME"));

    around.out.setstate(std::ios::badbit); // as a full disk sets it
    EXPECT_EQ(cli::run({u"--help"_s}, around), 1);
    EXPECT_THAT(err.str(), HasSubstr("could not be written"));
}

TEST_F(CliTest, ProgressIsSparseAndNeverGoesBack) {
    const auto shown = [this](bool terminal) {
        std::ostringstream err;
        cli::Surroundings around{
            .out = err, .err = err, .errIsTerminal = terminal, .clock = clock, .paths = {}, .attach = {}};
        {
            cli::ProgressLine progress(around);
            for (int done = 0; done <= 60; ++done)
                progress.show(100, done);
            for (int done = 0; done <= 100; ++done)
                progress.show(100, done);
        }
        return QString::fromStdString(err.str());
    };
    EXPECT_EQ(shown(false),
              u"Received 0 of 100 readings\nReceived 20 of 100 readings\nReceived 40 of 100 readings\n"
              "Received 60 of 100 readings\nReceived 80 of 100 readings\n"
              "Received 100 of 100 readings\n"_s);
    EXPECT_EQ(shown(true).count(u'\r'), 101);
    EXPECT_EQ(shown(true).count(u'\n'), 1);
}

} // namespace

} // namespace zel
