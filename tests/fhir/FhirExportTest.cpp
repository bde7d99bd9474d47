#include "fhir/FhirExport.h"

#include "store/AtomicFile.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <filesystem>

namespace zel::fhir {

using namespace Qt::StringLiterals;
using Problem = StoreErrorCode;

namespace {

TEST(FhirExportTest, ReplacesNeitherTheDataFileNorAFileOfItsOwn) {
    const QTemporaryDir home;
    QTemporaryDir out;
    ManualClock clock;
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    const QString dataFile = store.getZELXMLPath();
    ASSERT_TRUE(QDir{}.mkpath(QFileInfo{dataFile}.path()));
    ASSERT_TRUE(replaceFile(dataFile, "<ZEL><Patient><ID>a1</ID></Patient><Patient><ID>A1</ID></Patient>"
                                      "<Patient><ID>b</ID></Patient></ZEL>"));
    ASSERT_TRUE(store.loadXML());
    FhirExport bundles(store, out.path(), AverageRule::esh);
    ASSERT_TRUE(bundles.write(u"a1"_s, Replace::no));
    EXPECT_TRUE(bundles.write(u"a1"_s, Replace::yes)) << "its own is not another's";
    EXPECT_EQ(bundles.write(u"a1"_s, Replace::no).error().code, Problem::alreadyExists);
    EXPECT_EQ(bundles.write(u"c"_s, Replace::yes).error().code, Problem::noSuchRecord);

    // As on a disk that does not tell capitals.
    const QString other = out.filePath(u"A1.fhir.json"_s);
    std::filesystem::create_hard_link(out.filePath(u"a1.fhir.json"_s).toStdString(), other.toStdString());
    EXPECT_EQ(bundles.write(u"A1"_s, Replace::yes).error(),
              (StoreError{Problem::sameFileName, other, u"a1"_s}));

    const QByteArray before = readFile(dataFile).value();
    ASSERT_TRUE(QFile::link(dataFile, out.filePath(u"b.fhir.json"_s)));
    EXPECT_EQ(bundles.write(u"b"_s, Replace::yes).error().code, Problem::isDataFile);
    EXPECT_EQ(readFile(dataFile).value(), before);

    ASSERT_TRUE(out.remove());
    EXPECT_EQ(bundles.finish().error().code, Problem::notFlushed) << "it is looked at, not assumed";
    EXPECT_TRUE(bundles.finish()) << "nothing was written since";
}

TEST(FhirExportTest, ABundleOfADemonstrationSaysSoInItsNameAndInEachResource) {
    const QTemporaryDir home, out;
    ManualClock clock;
    DataStore invented{{home.path(), home.path(), home.path(), true}, clock};
    const QString dataFile = invented.getZELXMLPath();
    ASSERT_TRUE(QDir{}.mkpath(QFileInfo{dataFile}.path()));
    ASSERT_TRUE(replaceFile(dataFile, "<ZEL><Patient><ID>A</ID></Patient></ZEL>"));
    ASSERT_TRUE(invented.loadXML());
    ASSERT_TRUE(FhirExport(invented, out.path(), AverageRule::esh).write(u"A"_s, Replace::no));
    const auto bundle = readFile(out.filePath(u"Demonstration-A.fhir.json"_s));
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->count("HTEST"), 2) << "the bundle and its patient";
}

} // namespace

} // namespace zel::fhir
