// What the user is told, in the program's own words.
#include "monitor/MonitorResult.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"
#include "support/RealTexts.h"

#include <QTemporaryFile>

#include <set>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

TEST(Words, EachResultHasItsOwn) {
    const RealTexts texts;
    std::set<QString> said;
    for (int code = static_cast<int>(MonitorResult::success);
         code >= static_cast<int>(MonitorResult::unconfirmed); --code) {
        const QString words = describe(static_cast<MonitorResult>(code));
        EXPECT_TRUE(words.contains(u' ') && !words.contains(u'%')) << words.toStdString();
        EXPECT_TRUE(said.insert(words).second) << words.toStdString();
    }
}

TEST(Words, EachFaultOfAPlanNamesItsPlace) {
    const RealTexts texts;
    using Code = PlanError::Code;
    std::set<QString> said;
    for (int code = 0; code <= static_cast<int>(Code::tooMany); ++code) {
        const QString words = describe(PlanError{static_cast<Code>(code), u"records[3].sys"_s, u"0-255"_s});
        EXPECT_TRUE(words.contains(u"records[3].sys"_s) && !words.contains(u'%')) << words.toStdString();
        EXPECT_TRUE(said.insert(words).second) << words.toStdString();
    }
    EXPECT_TRUE(said.insert(describe(PlanError{Code::notObject})).second) << "the plan itself";
    QTemporaryFile plan;
    ASSERT_TRUE(plan.open() && plan.write(R"({"model": "411"})") > 0 && plan.flush());
    const ManualClock clock;
    const auto refused = makeSimulatedMonitor(plan.fileName(), clock);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.error().contains(plan.fileName()) && refused.error().contains(u"model"_s))
        << refused.error().toStdString();
    const auto unread = makeSimulatedMonitor(u"/no/such/plan"_s, clock);
    ASSERT_FALSE(unread);
    EXPECT_TRUE(unread.error().contains(u"/no/such/plan"_s)) << unread.error().toStdString();
    ASSERT_TRUE(plan.resize(0) && plan.seek(0) && plan.write(R"({"model": "41", "id": "A"})") > 0
                && plan.flush());
    EXPECT_TRUE(makeSimulatedMonitor(plan.fileName(), clock));
}

} // namespace
} // namespace zel
