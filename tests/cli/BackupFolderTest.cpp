#include "cli/CliTest.h"
#include "store/SecondFolder.h"

#include <QDir>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

TEST_F(CliTest, CopiesGoToASecondFolderAndComeBackFromThere) {
    addPatient(u"A1"_s);
    const QString stick = folder.filePath(u"stick, blue"_s);
    const QString away = folder.filePath(u"away"_s);
    QDir().mkdir(stick);
    EXPECT_EQ(zel({u"backup"_s, u"folder"_s}).out, "folder: \n");
    EXPECT_EQ(zel({u"backup"_s, u"folder"_s, stick + u"/none"_s}).status, 1);
    EXPECT_EQ(zel({u"backup"_s, u"folder"_s, stick}).out, "folder: " + stick.toStdString() + '\n');
    const auto named = secondFolder(dataFile())->value_or(SecondFolder{});
    EXPECT_EQ(zel({u"patients"_s}).err, "");
    EXPECT_TRUE(named.list().empty()) << "nothing was changed";

    clock.advance(std::chrono::hours(24));
    QDir().rename(stick, away);
    EXPECT_THAT(zel({u"settings"_s, u"--set"_s, u"SysStandard=130"_s}).err, HasSubstr("is not there"));
    EXPECT_EQ(zel({u"settings"_s, u"--set"_s, u"SysStandard=131"_s}).err, "") << "once a day";
    EXPECT_THAT(zel({u"backup"_s, u"list"_s}).err, HasSubstr("is not there")) << "when it is asked for";
    QDir().rename(away, stick);
    EXPECT_EQ(zel({u"settings"_s, u"--set"_s, u"SysStandard=132"_s}).err, "");
    ASSERT_EQ(named.list().size(), 1U);

    const QString copy = named.path(named.list().front().name);
    EXPECT_THAT(zel({u"backup"_s, u"list"_s}).out, HasSubstr('"' + copy.toStdString() + "\","));
    const Outcome back = zel({u"backup"_s, u"restore"_s, copy});
    EXPECT_EQ(back.status, 0) << back.err;
    EXPECT_THAT(zel({u"settings"_s}).out, testing::Not(HasSubstr("132")));
    EXPECT_EQ(zel({u"backup"_s, u"restore"_s, folder.filePath(u"plan.json"_s)}).status, 1);

    EXPECT_EQ(zel({u"backup"_s, u"folder"_s, u"--none"_s}).out, "folder: \n");
    clock.advance(std::chrono::hours(24));
    EXPECT_EQ(zel({u"settings"_s, u"--set"_s, u"SysStandard=133"_s}).err, "");
    EXPECT_EQ(named.list().size(), 1U);
}

} // namespace
} // namespace zel
