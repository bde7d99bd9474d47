#include "app/shell/FolderName.h"

#include <QDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

PatientModel named(const QString& family, const QString& given, const QString& ID) {
    PatientModel patient;
    patient.FamilyName = family;
    patient.GivenNames = given;
    patient.ID = ID;
    return patient;
}

const std::vector<PatientModel> somePatients{
    named(u"Smith"_s, u"Margaret Ann"_s, u"P-0042"_s),
    named(u"Müller-Lüdens"_s, u"Jörg"_s, u"7"_s),
    named(u"Wałęsa"_s, u"Zofia"_s, u""_s),
    named(u"王"_s, u"小明"_s, u"A1"_s),
    named(u"歐陽"_s, u"娜"_s, u"-"_s),
    named(u"Li"_s, u"Na"_s, u"2026"_s),
    named(u"김"_s, u"민수"_s, u"QX17"_s),
    named(u"陳大文"_s, u""_s, u"B2"_s),
};

QStringList namesIn(const char* list) { return QString::fromUtf8(list).split(u'|'); }

std::string keptOf(const QString& folder) { return folderNamingNobody(folder, somePatients).toStdString(); }

} // namespace

TEST(FolderNameTest, isCutAtWhatNamesAPatientHoweverItIsWritten) {
    for (const QString& part :
         namesIn("Smith|SMITH, Margaret|Margaret.Smith|margaret_smith|SmithMargaret|MargaretSmith|"
                 "smithmargaret|margaretannsmith2025|MSmith|smithm|Smith1956|reports-SmithMargaret|"
                 "P-0042|p0042|ReportP0042|\uFF33\uFF4D\uFF49\uFF54\uFF48|Müller-Lüdens|"
                 "mu\u0308ller lu\u0308dens|MuellerLuedens|Muller Ludens 2|Müller|Walesa|"
                 "wałęsa_zofia|王小明|小明王|王小明報告|王 小明|"
                 "小明的資料|王先生|王|歐陽|歐陽娜2025|LiNa|Li, Na|lina|2026|"
                 "2026-11|김민수|QX17|qx-17|給陳大文的報告|A1 reports|A-1"))
        EXPECT_EQ(keptOf(u"/data/"_s + part + u"/x"_s), "/data") << part.toStdString();
}

TEST(FolderNameTest, isKeptWhereItOnlyLooksLikeAName) {
    for (const QString& part :
         namesIn("Reports|Blacksmith|Smithsonian|Clinic|Linux|Medicine|Margaret|Medicalina|"
                 "Volume7|2025|12026|A11|B20|Documents|文件|國王的演講|Ann|0043"))
        EXPECT_EQ(keptOf(u"/data/"_s + part), "/data/" + part.toStdString());
    EXPECT_EQ(folderNamingNobody(u"/"_s, somePatients), u"/"_s);
    EXPECT_EQ(folderNamingNobody(u"/Smith/b"_s, {}), u"/Smith/b"_s);
    const QString home = QDir::homePath();
    EXPECT_EQ(folderNamingNobody(home + u"/x"_s, {named(QDir::home().dirName(), {}, u"9"_s)}), home + u"/x"_s)
        << "the user's own name is nobody's";
}

} // namespace zel
