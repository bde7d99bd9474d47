// Pages that nobody sees put their work off. Once they are seen, nothing of them may be of before.

#include "AppTest.h"
#include "support/ReadingPageTest.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

struct HiddenChange {
    const char* what;
    std::function<void()> make;
    std::string_view unseenIn{}; ///< views that it does not change
};

/// By the button of a view on the chart's page, or of the table's tab.
class HiddenPagesTest : public AppTest,
                        public testing::WithParamInterface<std::string>,
                        protected ReadingSteps {
protected:
    HiddenPagesTest() : ReadingSteps(store) {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        startsPlugged = false;
        storeComments();
        storeReadings(u"P2"_s, {reading(u"202603090800"_s, 151), reading(u"202603101900"_s, 161)});
        store.setCurrentID(u"P1"_s);
    }
    [[nodiscard]] QWidget& readingPage() override { return page("GraphViewController"); }

    /// Once texts of other lengths have got their room, which they ask for one after the other.
    QImage seen() {
        QImage now;
        for (int turn = 0; turn < 50; ++turn) {
            QCoreApplication::processEvents();
            const QImage next = app->mainWndow().centralWidget()->grab().toImage();
            if (std::exchange(now, next) == next) return now;
        }
        ADD_FAILURE() << "the page does not come to rest";
        return now;
    }
    QImage visit() {
        click(GetParam() == "tableBtn" ? "tableBtn" : "graphBtn");
        return seen();
    }
    std::vector<HiddenChange> changes() {
        const auto first = [this] { return ReadingList{store.getReadingForID(u"P1"_s).front()}; };
        return {
            {"readings are stored", [this] { storeReadings(u"P1"_s, {reading(u"202603090800"_s, 177)}); }},
            {"a comment is added", [this] { addComment(u"3"_s, u"20260301"_s, u"20260301"_s, u"third"_s); }},
            {"a reading is left out",
             [this, first] { EXPECT_TRUE(store.excludeReadings(first(), u"why"_s)); }},
            {"the limits are changed",
             [this] {
                 store.getSetting().sysStandard = 122;
                 EXPECT_TRUE(store.saveSetting() && store.loadXML());
             },
             "tableBtn toggleHistogram"},
            {"another mark of high values is chosen",
             [this] {
                 EXPECT_TRUE(store.chooseViewLimits({.choice = LimitChoice::own, .own = {122, 78}}));
             },
             "toggleGraph toggleHistogram toggleCorrelation toggleTrend"},
            {"the period ends earlier",
             [this] { period.setTimePeriod(at(u"202603020000"_s), at(u"202603092359"_s)); }},
            {"another patient is chosen", [this] { store.setCurrentID(u"P2"_s); }},
        };
    }
};

} // namespace

TEST_P(HiddenPagesTest, showNothingThatWasBefore) {
    start();
    app->mainWndow().resize(1300, 1100);
    visit();
    click(GetParam().c_str());
    for (const HiddenChange& change : changes()) {
        const QImage before = visit();
        click("patientBtn");
        change.make();
        const QImage shown = visit();
        EXPECT_EQ(shown == before, change.unseenIn.find(GetParam()) != change.unseenIn.npos) << change.what;
        ASSERT_TRUE(store.loadXML()); // all that is in view is worked out anew
        EXPECT_EQ(seen(), shown) << change.what;
    }
}

INSTANTIATE_TEST_SUITE_P(Views, HiddenPagesTest,
                         testing::Values("tableBtn", "toggleGraph", "toggleHistogram", "toggleCorrelation",
                                         "toggleTrend"));

} // namespace zel
