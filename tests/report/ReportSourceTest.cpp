#include "report/ReportSource.h"

#include "store/AtomicFile.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

TEST(ReportSource, isOfTheCurrentPatientWithThisFilesLimitsAndOfNobodyElse) {
    const QTemporaryDir home;
    ManualClock clock;
    DataStore store({home.path(), home.path(), home.path()}, clock);
    const QString path = store.getZELXMLPath();
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    ASSERT_TRUE(replaceFile(path, "<ZEL><SystemSetting/><Patient><ID>A</ID></Patient>"
                                  "<Patient><ID>B</ID><FamilyName>Byron</FamilyName></Patient>"
                                  "<Comment><ID>B</ID><CommentID>7</CommentID></Comment></ZEL>"));
    ASSERT_TRUE(store.load());
    ASSERT_TRUE(writeViewLimits(path, {LimitChoice::low}));
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"C"_s);
    EXPECT_FALSE(reportSource(store, {}, clock));
    store.setCurrentID(u"B"_s);
    const auto source = reportSource(store, {}, clock);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->patient.FamilyName, u"Byron"_s);
    EXPECT_EQ(source->comments.size(), 1U);
    EXPECT_EQ(source->highFrom, (LimitPair{130, 80}));
    EXPECT_EQ(source->now, std::chrono::floor<Instant::duration>(clock.now()));
    EXPECT_FALSE(source->isDemonstration);

    DataStore invented({home.path(), home.path(), home.path(), true}, clock);
    ASSERT_TRUE(invented.loadXML());
    invented.setCurrentID(u"B"_s);
    EXPECT_TRUE(reportSource(invented, {}, clock)->isDemonstration);
}

} // namespace

} // namespace zel
