#include "store/NewReadings.h"

#include "store/ManualReading.h"
#include "store/RecordXml.h"
#include "store/XmlDocument.h"

#include <gtest/gtest.h>

#include <random>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using std::chrono::minutes;

/// Of few dates, offsets and values, so that many of two hundred are alike in one thing or the other.
class MadeReadings {
public:
    explicit MadeReadings(unsigned seed) : random{seed} {}
    QByteArray element(const char* ID) {
        const int hour = pick(3);
        const QByteArray date = pick(12) == 0 ? QByteArray{"0001-01-01T00:00:00+08:00"}
                                              : "2020-05-04T1" + QByteArray::number(hour) + ":30:0"
                                                    + QByteArray::number(pick(2)) + "+0"
                                                    + QByteArray::number(pick(3)) + ":00";
        const auto value = [this](int least) { return QByteArray::number(least + pick(2)); };
        const QByteArray manual = pick(3) == 0 ? "<Source>manual</Source>" : "";
        const QByteArray excluded = pick(8) == 0 ? "<Excluded/>" : "";
        return "<MeasureRec><ID>" + QByteArray{ID} + "</ID><MAM>" + value(0) + "</MAM><ReadingDate>" + date
               + "</ReadingDate><Sys>" + value(120) + "</Sys><Sys>9</Sys><Dia>" + value(80) + "</Dia><Pulse>"
               + value(60) + "</Pulse>" + excluded + manual + "</MeasureRec>";
    }

private:
    int pick(int count) { return std::uniform_int_distribution<int>{0, count - 1}(random); }
    std::mt19937 random;
};

struct Compared {
    ReadingModel reading;
    Date wall; ///< what the clocks showed
    bool isMatched = false;
};

bool isNil(const Compared& one) { return isNilDate(one.reading.ReadingDate); }

/// \p downloaded against every one of \p stored, by one of their two times.
void strikeOut(std::vector<Compared>& stored, std::vector<Compared>& downloaded, bool byWall) {
    const auto isAlike = [byWall](const Compared& a, const Compared& b) {
        const bool isSameTime = byWall ? a.wall == b.wall : a.reading.ReadingDate == b.reading.ReadingDate;
        return a.reading.values() == b.reading.values() && isNil(a) == isNil(b) && (isNil(a) || isSameTime);
    };
    std::erase_if(downloaded, [&](const Compared& wanted) {
        const auto found = std::find_if(stored.rbegin(), stored.rend(), [&](const Compared& each) {
            return !each.isMatched && !each.reading.isManual && isAlike(each, wanted);
        });
        if (found != stored.rend()) found->isMatched = true;
        return found != stored.rend();
    });
}

std::vector<Compared> readingsOf(pugi::xml_node root, const char* ID) {
    std::vector<Compared> all;
    for (const pugi::xml_node element : root.children("MeasureRec")) {
        if (childText(element, "ID") != QLatin1StringView{ID}) continue;
        const QByteArray date = childText(element, "ReadingDate").toUtf8();
        all.push_back({ReadingModel::initWithXMLNode(element), XMLStrToWallClock(date.toStdString())});
    }
    return all;
}

std::string words(const ReadingList& readings) {
    std::string all;
    for (const ReadingModel& each : readings)
        all += each.RecID.text().toStdString() + ' ';
    return all;
}

/// Minute and the three values that the display shows, by either time.
bool isTwin(const Compared& typed, const Compared& measured) {
    const auto key = [](const Date& time, const ReadingModel& r) {
        return std::tuple{std::chrono::floor<minutes>(*time), r.sys, r.dia, r.pulse};
    };
    return !isNil(typed) && !isNil(measured)
           && (key(typed.reading.ReadingDate, typed.reading)
                   == key(measured.reading.ReadingDate, measured.reading)
               || key(typed.wall, typed.reading) == key(measured.wall, measured.reading));
}

/// The result is that of comparing each with all.
TEST(NewReadings, AreThoseThatNoStoredOneStandsFor) {
    std::size_t newOnes = 0, twins = 0;
    for (unsigned seed = 0; seed < 20; ++seed) {
        MadeReadings made{seed};
        QByteArray file = "<ZEL>";
        for (int i = 0; i < 200; ++i)
            file += made.element(i % 5 == 0 ? "B" : "A");
        for (int i = 0; i < 100; ++i)
            file += made.element("D");
        const auto document = XmlDocument::parse(file + "</ZEL>");
        ASSERT_TRUE(document);
        std::vector<Compared> stored = readingsOf(document->root(), "A");
        std::vector<Compared> expected = readingsOf(document->root(), "D");
        ReadingList downloaded;
        for (Compared& each : expected) {
            each.reading.RecID = QString::number(downloaded.size());
            downloaded.push_back(each.reading);
        }
        for (const bool byWall : {true, false})
            strikeOut(stored, expected, byWall);
        ReadingList left;
        for (const Compared& each : expected)
            left.push_back(each.reading);
        const ReadingList found = newReadings(document->root(), u"A"_s, downloaded);
        EXPECT_EQ(words(found), words(left)) << seed;
        newOnes += found.size();

        std::size_t expectedTwins = 0;
        for (const Compared& typed : stored)
            expectedTwins += typed.reading.isManual && !typed.reading.isExcluded()
                                     && std::ranges::any_of(
                                         expected, [&](const Compared& each) { return isTwin(typed, each); })
                                 ? 1U
                                 : 0U;
        EXPECT_EQ(typedMeanwhileMeasured(document->root(), u"A"_s, found).size(), expectedTwins) << seed;
        twins += expectedTwins;
    }
    EXPECT_GT(newOnes, 100U);
    EXPECT_GT(twins, 100U);
}

} // namespace
} // namespace zel
