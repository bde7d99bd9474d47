// At every report of a download the monitor is pulled out, and another one is plugged in. The two are known
// by their IDs, and by the line: what was opened anew may be another one. So nothing of the other gets to the
// first one's patient unless it holds that patient's ID, then with all it holds; and each is emptied only
// when its own readings are stored. ZEL_REPORT_STRIDE is the distance of the reports tried, 1 for each.
#include "cli/WireTest.h"
#include "support/FromEnvironment.h"

#include <QFileInfo>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

struct Swap {
    const char* what;
    SimulatedMonitorPlan first;
    SimulatedMonitorPlan second;
    bool isSamePatients = false; ///< by all that can be known
    QStringList options = {};
};

/// Reports of the model's two answers, before the monitor's ID is asked for.
constexpr int beforeID = 4;
/// In the place of a report: at so many looks at the line, less one, since its readings are in the data file,
/// which is before it is emptied. The order to empty it comes after eight.
constexpr int whenStored = -1;
constexpr int lastLookSinceStored = -12;

class SwapTest : public WireTest {
protected:
    /// What a download from this monitor alone stores.
    QByteArray wholeOf(const SimulatedMonitorPlan& plan, const QStringList& options) {
        Wire& wire = attach(plan);
        EXPECT_EQ(download(options).outcome.status, 0);
        reports = wire.reports();
        return content();
    }

    void trySwap(const Swap& swap, int after, const QByteArray& first, const QByteArray& second) {
        SCOPED_TRACE(testing::Message() << swap.what << " after report " << after << " of " << reports);
        Wire& wire = attach(swap.first);
        const auto isStored = [this] { return QFileInfo(dataFile()).size() > before.size(); };
        int looks = after; // at the line, up to the one at which it is pulled out
        const auto isPulled = [&, looks]() mutable {
            return after < 0 ? isStored() && ++looks >= 0 : wire.reports() >= after;
        };
        wire.swapOnce(isPulled, swap.second);
        const Outcome outcome = download(swap.options).outcome;
        const std::size_t all = swap.second.records.size();
        const bool isFirstStored = content() == first;
        const bool isSecondWanted =
            swap.isSamePatients || (after >= 0 && after <= beforeID && !swap.options.isEmpty());
        const bool isSecondStored = all > 0 && isSecondWanted && content() == second;
        EXPECT_TRUE(isFirstStored || isSecondStored || isUntouched()) << "half of each, or the wrong one's";
        EXPECT_TRUE(isFirstStored || wire.held() == 255U);
        EXPECT_TRUE(isSecondStored || wire.heldByOther() == all);
        EXPECT_TRUE(outcome.status == 0 || !outcome.err.empty());
        if (outcome.status != 0) return;
        EXPECT_TRUE(!isUntouched() || outcome.out == "downloaded: 0\nnew: 0\n") << "it was none";
        EXPECT_TRUE(!isFirstStored || wire.held() == 0) << "told as emptied";
        EXPECT_TRUE(!isSecondStored || wire.heldByOther() == 0) << "told as emptied";
    }

    int reports = 0; ///< of a whole download
};

} // namespace

TEST_F(SwapTest, AnotherMonitorIsNotTakenForTheFirst) {
    SimulatedMonitorPlan empty{.ID = "M1", .reportSizes = {8}};
    SimulatedMonitorPlan otherModel = fullMonitor("M1", 100);
    otherModel.model = "31";
    const Swap swaps[] = {
        {"another ID", fullMonitor(), fullMonitor("M2", 100)},
        {"no ID", fullMonitor(), fullMonitor("", 100)},
        {"no readings, and the same ID", fullMonitor(), empty, true},
        {"other readings, and the same ID", fullMonitor(), fullMonitor("M1", 100), true},
        {"another model, and the same ID", fullMonitor(), otherModel, true},
        {"no ID after none", fullMonitor(""), fullMonitor("", 100), false, {u"--any-monitor"_s}},
    };
    const int stride = static_cast<int>(std::max(1U, fromEnvironment("ZEL_REPORT_STRIDE", 211)));
    for (const Swap& swap : swaps) {
        const QByteArray second = wholeOf(swap.second, swap.options + QStringList{u"--any-monitor"_s});
        const QByteArray first = wholeOf(swap.first, swap.options);
        for (int after = lastLookSinceStored; after <= reports; ++after)
            if (after <= 18 || after >= reports - 16 || after % stride == 0)
                trySwap(swap, after, first, second);
    }
}

} // namespace zel
