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

/// Each of \p sought that is like one of \p standing, which stands for no other one then.
template <class Alike>
void strikeOut(std::vector<Compared>& standing, std::vector<Compared>& sought, const Alike& isAlike) {
    std::erase_if(sought, [&](const Compared& wanted) {
        const auto found = std::find_if(standing.rbegin(), standing.rend(), [&](const Compared& each) {
            return !each.isMatched && isAlike(each, wanted);
        });
        if (found != standing.rend()) found->isMatched = true;
        return found != standing.rend();
    });
}

/// By one of their two times.
auto isStoredOf(bool byWall) {
    return [byWall](const Compared& a, const Compared& b) {
        const bool isSameTime = byWall ? a.wall == b.wall : a.reading.ReadingDate == b.reading.ReadingDate;
        return !a.reading.isManual && a.reading.values() == b.reading.values() && isNil(a) == isNil(b)
               && (isNil(a) || isSameTime);
    };
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

/// Minute and the three values that the display shows, by one of their two times.
auto isTwinOf(bool byWall) {
    return [byWall](const Compared& a, const Compared& b) {
        const auto key = [byWall](const Compared& each) {
            const Date& time = byWall ? each.wall : each.reading.ReadingDate;
            return std::tuple{std::chrono::floor<minutes>(*time), each.reading.sys, each.reading.dia,
                              each.reading.pulse};
        };
        return !isNil(a) && !isNil(b) && key(a) == key(b);
    };
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
            strikeOut(stored, expected, isStoredOf(byWall));
        ReadingList left;
        for (const Compared& each : expected)
            left.push_back(each.reading);
        const ReadingList found = newReadings(document->root(), u"A"_s, downloaded);
        EXPECT_EQ(words(found), words(left)) << seed;
        newOnes += found.size();

        std::erase_if(
            stored, [](const Compared& each) { return !each.reading.isManual || each.reading.isExcluded(); });
        const std::size_t typed = stored.size();
        for (const bool byWall : {true, false})
            strikeOut(expected, stored, isTwinOf(byWall));
        const std::size_t expectedTwins = typed - stored.size();
        EXPECT_EQ(typedMeanwhileMeasured(document->root(), u"A"_s, found).size(), expectedTwins) << seed;
        twins += expectedTwins;
    }
    EXPECT_GT(newOnes, 100U);
    EXPECT_GT(twins, 100U);
}

} // namespace
} // namespace zel
