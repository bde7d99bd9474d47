#include "chart/Drawing.h"

#include <gmock/gmock.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

const TextAttribute text{};

double widthOf(const QString& line) { return textSize(line, text).width; }

TEST(Drawing, SizesGrowWithTheTypeAlone) {
    const Size small = textSize(u"mmHg 120"_s, {.size = 11});
    const Size large = textSize(u"mmHg 120"_s, {.size = 110});
    EXPECT_NEAR(large.width, 10 * small.width, 0.02 * large.width);
    EXPECT_GT(small.width, 0);
    EXPECT_GT(textSize(QString(), text).height, 10) << "an empty line is as high as others";
}

TEST(Drawing, TextStandsWhereItIsPlaced) {
    const auto [w, h] = textSize(u"120"_s, text);
    const struct {
        XPos x;
        YPos y;
        Point origin;
    } cases[]{
        {XPos::left, YPos::bottom, {100, 50}},
        {XPos::centre, YPos::centre, {100 - w / 2, 50 - h / 2}},
        {XPos::right, YPos::top, {100 - w, 50 - h}},
        {XPos::left, static_cast<YPos>(4), {100, 50}},
        {static_cast<XPos>(7), YPos::top, {100, 50 - h}},
    };
    for (const auto& each : cases) {
        Picture picture;
        textOut(picture, u"120"_s, {100, 50}, text, each.x, each.y);
        EXPECT_EQ(std::get<TextLine>(picture.at(0)).origin, each.origin);
    }
}

TEST(Drawing, WordsBreakAtBlanks) {
    const struct {
        QString line;
        int from, to, at;
    } cases[]{
        {u"abc def ghi"_s, 0, 6, 6},        {u"abc def ghi"_s, 0, 7, 7},
        {u"abc def ghi"_s, 0, 9, 7},        {u"abc def ghi"_s, 4, 6, 6},
        {u"abc def ghi"_s, 5, 5, -1},       {u"abcdef"_s, 0, 3, -1},
        {u"abc def ghi"_s, 0, 10, 10},      {u"a b"_s, 1, 0, -1},
        {u"ab \u0301cd"_s, 0, 4, -1},       // a blank that carries an accent
        {u"測量血壓值，請坐下"_s, 0, 4, 3}, // what ends a clause begins no line
        {u"測量血壓值，請坐下"_s, 0, 5, 5}, {u"值（高）下"_s, 0, 1, 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(adjustWordBreak(each.line, each.from, each.to), each.at) << each.line.toStdString();
}

TEST(Drawing, LinesHoldWhatFits) {
    const double fourLetters = widthOf(u"mmmm"_s) + 0.1;
    const struct {
        const char* what;
        QString line;
        double width;
        int from;
        int length;
    } cases[]{
        {"all of it", u"mmmm"_s, fourLetters, 0, 4},
        {"the end", u"mmmm"_s, fourLetters, 4, -1},
        {"a word too long", u"mmmmmm"_s, fourLetters, 0, 4},
        {"its rest", u"mmmmmm"_s, fourLetters, 4, 2},
        {"the blank that ends the line", u"mm mmmm"_s, fourLetters, 0, 3},
        {"after that blank", u"mm mmmm"_s, fourLetters, 3, 4},
        {"a line feed", u"m\nmm"_s, fourLetters, 0, 2},
        {"a line feed after a full line", u"mmmm\nm"_s, fourLetters, 0, 5},
        {"a line feed alone", u"\n\nm"_s, fourLetters, 0, 1},
        {"no room", u"mmmm"_s, 0.5, 0, 0},
        {"a line feed far behind", u"m"_s.repeated(900) + u"\nm"_s, widthOf(u"m"_s) * 950, 0, 901},
        {"a word before a far line feed", u"mm "_s.repeated(50) + u'\n', fourLetters, 0, 3},
        {"a negative width", u"mmmm"_s, -10, 0, 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(getLineIndex(each.line, each.from, each.width, text), each.length) << each.what;
}

TEST(Drawing, CharactersStayWhole) {
    for (const QString& character :
         {u"\U0001F600"_s, u"e\u0301\u0323"_s, u"\U0001F469\u200D\u2695\uFE0F"_s}) {
        const QString line = character.repeated(200);
        for (int width = 5; width < 400; width += 7) {
            const int length = getLineIndex(line, 0, width, text);
            EXPECT_EQ(length % character.size(), 0) << width;
            EXPECT_LE(widthOf(line.left(length)), width);
        }
    }
}

} // namespace
} // namespace zel
