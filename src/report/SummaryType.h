#pragma once
// What the parts of the summary are set in. Nothing on it is smaller than smallestType.

#include "analysis/HighValues.h"
#include "analysis/PressureMeans.h"
#include "chart/Drawing.h"
#include "report/ReportSource.h"

namespace zel {

inline constexpr int smallestType = 8;
inline const TextAttribute summaryFont{.size = 9}, summaryBold{.size = 9, .bold = true},
    summarySmall{.size = smallestType}, summaryHeading{.size = 10, .bold = true};

/// One line, set smaller where it is too long, and cut only then.
void summaryText(Picture& picture, const QString& text, Point at, double width,
                 const TextAttribute& attribute, XPos x = XPos::left);
/// The same on the next line of a block, whose top moves down by it.
void summaryLine(Picture& picture, const QString& text, Rect& block, const TextAttribute& attribute);
/// A number, which would lie if it were cut: an ellipsis stands for one that has no room.
void summaryFigure(Picture& picture, const QString& text, Point at, double width,
                   const TextAttribute& attribute, XPos x = XPos::left);
/// With a line under it. \return what is left of the block
[[nodiscard]] Rect summaryBlock(Picture& picture, const QString& heading, const Rect& block);
[[nodiscard]] double summaryBlockHeight(); ///< of the heading and its line

[[nodiscard]] bool isHigh(const ExactMean& mean, std::uint32_t limit);
[[nodiscard]] bool isAnyHigh(const PressureMeans& means, const LimitPair& limits);
/// "138/90", each value as ExactMean::roundedBeside() has it, with its mark where it is high; empty for none.
[[nodiscard]] QString pressureText(const PressureMeans& means, const LimitPair& limits);
/// In the format of the settings; "n.a." for none.
[[nodiscard]] QString summaryDay(DayNumber day, const ReportSource& report);

} // namespace zel
