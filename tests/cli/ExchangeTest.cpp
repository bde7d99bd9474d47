#include "cli/CliTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Two patients, one with a reading, in a file that has a place for every setting.
struct CliExchangeTest : CliTest {
    QString out = folder.filePath(u"out"_s);

    CliExchangeTest() {
        QDir().mkdir(out);
        addPatient(u"A1"_s);
        addPatient(u"B/2"_s);
        plug(planM1);
        EXPECT_EQ(zel({u"download"_s, u"--patient"_s, u"A1"_s, u"--any-monitor"_s}).status, 0);
    }
    [[nodiscard]] std::string line(const QString& name) const {
        return (u"written: "_s + out + u'/' + name + u'\n').toStdString();
    }
};

TEST_F(CliExchangeTest, PatientsGoOutAndComeBack) {
    const Outcome exported = zel({u"export-xml"_s, out});
    EXPECT_EQ(exported.status, 0);
    EXPECT_EQ(exported.out, line(u"A1.xml"_s) + line(u"B%2F2.xml"_s));
    const std::string readings = zel({u"readings"_s, u"--patient"_s, u"A1"_s}).out;
    EXPECT_THAT(readings, HasSubstr("\n2026-11-02,19:30,120,80,"));

    const QStringList import{u"import"_s, out + u"/A1.xml"_s, out + u"/B%2F2.xml"_s, u"nowhere.xml"_s};
    const QByteArray before = data();
    const Outcome known = zel(import);
    EXPECT_EQ(known.status, 1);
    EXPECT_EQ(known.out, "taken: 0\nrefused: 3\npatients: 0\nreadings: 0\ncomments: 0\n");
    EXPECT_THAT(known.err, HasSubstr("A1.xml: a patient with the ID “A1” is already"));
    EXPECT_THAT(known.err, HasSubstr("“B/2”"));
    EXPECT_THAT(known.err, HasSubstr("nowhere.xml: the file cannot be read"));
    EXPECT_EQ(data(), before);

    QFile::remove(dataFile());
    const Outcome taken = zel(import);
    EXPECT_EQ(taken.status, 1);
    EXPECT_EQ(taken.out, "taken: 2\nrefused: 1\npatients: 2\nreadings: 4\ncomments: 0\n");
    EXPECT_EQ(zel({u"readings"_s, u"--patient"_s, u"A1"_s}).out, readings);
}

TEST_F(CliExchangeTest, FilesThatAreThereAreKeptUnlessForced) {
    QFile old(out + u"/A1.xml"_s);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    const Outcome kept = zel({u"export-xml"_s, out});
    EXPECT_EQ(kept.status, 1);
    EXPECT_EQ(kept.out, line(u"B%2F2.xml"_s));
    EXPECT_THAT(kept.err, StartsWith("zel export-xml: There is a file " + old.fileName().toStdString()));
    EXPECT_THAT(kept.err, HasSubstr("--force"));
    EXPECT_EQ(old.size(), 0);

    const Outcome forced = zel({u"export-xml"_s, out, u"--patient"_s, u"A1"_s, u"--force"_s});
    EXPECT_EQ(forced.out, line(u"A1.xml"_s));
    EXPECT_GT(QFile(old.fileName()).size(), 0);

    const QStringList csv{u"export-csv"_s, out, u"--patient"_s, u"A1"_s};
    EXPECT_EQ(zel(csv).out, line(u"A1.csv"_s));
    EXPECT_EQ(zel(csv).status, 1);
    EXPECT_EQ(zel(csv + QStringList(u"--force"_s)).status, 0);
}

TEST_F(CliExchangeTest, BundlesAreWrittenForAllOrOneAndNeverOverAFileUnlessForced) {
    const QByteArray before = data();
    EXPECT_EQ(zel({u"export-fhir"_s, out, u"--patient"_s, u"A1"_s}).out, line(u"A1.fhir.json"_s));
    const QString one = out + u"/A1.fhir.json"_s;
    EXPECT_EQ(QFile::permissions(one) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    const qint64 size = QFileInfo(one).size();
    const Outcome kept = zel({u"export-fhir"_s, out});
    EXPECT_EQ(kept.status, 1);
    EXPECT_EQ(kept.out, line(u"B%2F2.fhir.json"_s));
    EXPECT_THAT(kept.err, StartsWith("zel export-fhir: There is a file " + one.toStdString()));
    EXPECT_THAT(kept.err, HasSubstr("--force"));
    ASSERT_TRUE(QFile::resize(one, 1));
    EXPECT_EQ(zel({u"export-fhir"_s, out, u"--force"_s, u"--rule"_s, u"esh"_s}).status, 0);
    EXPECT_EQ(QFileInfo(one).size(), size);
    EXPECT_EQ(zel({u"export-fhir"_s, out, u"--rule"_s, u"who"_s}).status, 2);
    EXPECT_EQ(data(), before);
}

TEST_F(CliExchangeTest, AllPatientsAreTheSameOnesInEachExportAndWhoIsLeftOutIsTold) {
    setData("<ZEL><SystemSetting/><Patient><ID>A1</ID><FamilyName>First</FamilyName></Patient>"
            "<Patient><ID/><FamilyName>None</FamilyName></Patient><Patient><ID>A1</ID>"
            "<FamilyName>Second</FamilyName></Patient></ZEL>");
    const QString told =
        u": 1 patient was left out: another one in the list has the same ID, or none either."_s;
    const struct {
        const char* command;
        QString extension;
        bool isWhole;
    } cases[] = {{"export-xml", u".xml"_s, true},
                 {"export-fhir", u".fhir.json"_s, false},
                 {"export-table", u".table.csv"_s, false}};
    for (const auto& [command, extension, isWhole] : cases) {
        const Outcome outcome = zel({QString::fromLatin1(command), out});
        EXPECT_EQ(outcome.out, line(u"A1"_s + extension) + line(u"%"_s + extension)) << command;
        EXPECT_EQ(outcome.status, isWhole ? 0 : 1) << command;
        if (isWhole)
            EXPECT_EQ(outcome.err, "") << "both patients are in the file";
        else
            EXPECT_THAT(outcome.err, StartsWith("zel " + std::string(command) + told.toStdString()));
    }
    const Outcome table = zel({u"export-table"_s, out + u"/all.csv"_s});
    EXPECT_THAT(table.err, HasSubstr("2 patients have no line in the table"));
    EXPECT_EQ(table.status, 1);
    EXPECT_EQ(zel({u"export-table"_s, out, u"--patient"_s, u"A1"_s, u"--force"_s}).status, 0);
}

TEST_F(CliExchangeTest, FilesOfADemonstrationAreToldByTheNamesThatTheyHave) {
    QFile mark(QFileInfo(dataFile()).path() + u"/Demonstration"_s);
    ASSERT_TRUE(mark.open(QIODevice::WriteOnly));
    for (const auto& [command, extension] : {std::pair{u"export-xml"_s, u".xml"_s},
                                             {u"export-csv"_s, u".csv"_s},
                                             {u"export-fhir"_s, u".fhir.json"_s},
                                             {u"export-table"_s, u".table.csv"_s}}) {
        const QString name = u"Demonstration-A1"_s + extension;
        EXPECT_EQ(zel({command, out, u"--patient"_s, u"A1"_s}).out, line(name));
        EXPECT_TRUE(QFile::exists(out + u'/' + name)) << qPrintable(name);
    }
    EXPECT_EQ(QDir(out).entryList(QDir::Files).size(), 4);
}

TEST_F(CliExchangeTest, UnknownPatientOrFolderIsTold) {
    const QString none = out + u"/none"_s;
    const std::pair<QStringList, const char*> cases[] = {
        {{u"readings"_s, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"statistics"_s, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"download"_s, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"export-xml"_s, out, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"export-csv"_s, out, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"export-fhir"_s, out, u"--patient"_s, u"nobody"_s}, "'nobody'"},
        {{u"export-xml"_s, none, u"--patient"_s, u"A1"_s}, "no folder"},
        {{u"export-csv"_s, none, u"--patient"_s, u"A1"_s}, "no folder"},
        {{u"export-fhir"_s, none}, "no folder"},
    };
    for (const auto& [command, reason] : cases) {
        const Outcome outcome = zel(command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr(reason));
    }
    EXPECT_TRUE(QDir(out).isEmpty());
}

TEST_F(CliExchangeTest, SettingsAreShownAndChangedAllOrNone) {
    const Outcome before = zel({u"settings"_s});
    EXPECT_EQ(before.out, "DateFormat: dd mm yyyy\nTimeFormat: 12-hours\nMetricFormat: lb / in\n"
                          "EraseRecAfterReading: 1\nShowPPorMap: 0\nUserWhoStandard: 1\nSysStandard: 140\n"
                          "DiaStandard: 90\nPhysicianAddress: Practitioner (Physician)\\nPractice\\n"
                          "Street address\\nZip Code and City\\nPhone\\nEmail Address\n");
    const auto set = [this](const QStringList& values) {
        QStringList words{u"settings"_s};
        for (const QString& value : values)
            words += {u"--set"_s, value};
        return zel(words);
    };
    const std::pair<QStringList, const char*> refused[] = {
        {{u"SysStandard=120"_s, u"DiaStandard=1000"_s},
         "DiaStandard takes 0 for none, or a whole number from 30 to 160"},
        {{u"MetricFormat=stone"_s}, "“kg / cm”, “lb / in”, not 'stone'"},
        {{u"sysStandard=120"_s}, "no setting 'sysStandard'"},
        {{u"SysStandard"_s}, "KEY=VALUE"},
        {{u"SysStandard=120"_s, u"SysStandard=130"_s}, "more than once"},
    };
    for (const auto& [values, reason] : refused) {
        const Outcome outcome = set(values);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, HasSubstr(reason));
    }
    EXPECT_EQ(zel({u"settings"_s}).out, before.out);

    EXPECT_EQ(set({u"SysStandard=099"_s, u"PhysicianAddress=A=B\\\\C\\nD\\x"_s}).out,
              "SysStandard: 99\nPhysicianAddress: A=B\\\\C\\nD\\\\x\n");
    EXPECT_TRUE(data().contains("A=B\\C\nD\\x<"));

    const Outcome crossed = set({u"SysStandard=90"_s}); // the file has 90 for the other
    EXPECT_EQ(crossed.status, 1);
    EXPECT_THAT(crossed.err, HasSubstr("has to be below"));
    EXPECT_THAT(zel({u"settings"_s}).out, HasSubstr("SysStandard: 99\n"));
    EXPECT_EQ(set({u"SysStandard=90"_s, u"DiaStandard=60"_s}).status, 0) << "both at once";
}

TEST_F(CliExchangeTest, SettingThatTheFileHasNoPlaceForIsToldAndNoneIsChanged) {
    const QByteArray old = "<ZEL>\n    <SystemSetting>\n        <SysStandard>150</SysStandard>\n"
                           "    </SystemSetting>\n</ZEL>\n";
    setData(old);
    const Outcome outcome =
        zel({u"settings"_s, u"--set"_s, u"SysStandard=130"_s, u"--set"_s, u"DiaStandard=80"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("no place for the setting DiaStandard"));
    EXPECT_EQ(data(), old);
}

} // namespace

} // namespace zel
