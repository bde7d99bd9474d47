#include "report/SummaryType.h"

#include "report/FieldText.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double aboveLine = 1, belowLine = 2;

} // namespace

void summaryText(Picture& picture, const QString& text, Point at, double width,
                 const TextAttribute& attribute, XPos x) {
    if (!text.isEmpty()) fieldFigure(picture, text, at, width, attribute, x, smallestType);
}

void summaryLine(Picture& picture, const QString& text, Rect& block, const TextAttribute& attribute) {
    block.height -= lineHeight(attribute);
    summaryText(picture, text, {block.x, block.top()}, block.width, attribute);
}

void summaryFigure(Picture& picture, const QString& text, Point at, double width,
                   const TextAttribute& attribute, XPos x) {
    const bool fits = isWhole(text, width, {.size = smallestType, .bold = attribute.bold});
    summaryText(picture, fits ? text : u"\u2026"_s, at, width, attribute, x);
}

Rect summaryBlock(Picture& picture, const QString& heading, const Rect& block) {
    Rect left = block;
    summaryLine(picture, heading, left, summaryHeading);
    const double y = left.top() - aboveLine;
    picture.emplace_back(StraightLine{{block.x, y}, {block.right(), y}, 0.5, Qt::black});
    left.height -= aboveLine + belowLine;
    return left;
}

double summaryBlockHeight() { return lineHeight(summaryHeading) + aboveLine + belowLine; }

bool isHigh(const ExactMean& mean, std::uint32_t limit) { return limit > 0 && mean.isAtLeast(limit); }

bool isAnyHigh(const PressureMeans& means, const LimitPair& limits) {
    return isHigh(means.sys, limits.sys) || isHigh(means.dia, limits.dia);
}

QString pressureText(const PressureMeans& means, const LimitPair& limits) {
    if (means.count() == 0) return {};
    const auto text = [](const ExactMean& mean, std::uint32_t limit) {
        const QString value = mean.roundedBeside(limit);
        return isHigh(mean, limit) ? value + highMark : value;
    };
    return text(means.sys, limits.sys) + u'/' + text(means.dia, limits.dia);
}

QString summaryDay(DayNumber day, const ReportSource& report) {
    return isNilDay(day) ? qtTrId("n.a.") : dayText(day, report.settings.getDateFormat());
}

} // namespace zel
