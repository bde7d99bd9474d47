#include "report/Section.h"

#include <algorithm>
#include <array>

namespace zel {

namespace {

constexpr auto portrait = QPageLayout::Portrait;
constexpr auto landscape = QPageLayout::Landscape;

constexpr std::array table{
    SectionFacts{Section::summary, "summary", [] { return qtTrId("summary"); }, portrait},
    SectionFacts{Section::graph, "graph", [] { return qtTrId("graph"); }, landscape},
    SectionFacts{Section::PatientProfile, "PatientProfile", [] { return qtTrId("PatientProfile"); },
                 landscape},
    SectionFacts{Section::histogram, "histogram", [] { return qtTrId("histogram"); }, landscape},
    SectionFacts{Section::correlation, "correlation", [] { return qtTrId("correlation"); }, landscape},
    SectionFacts{Section::trend, "trend", [] { return qtTrId("trend"); }, landscape},
    SectionFacts{Section::table, "table", [] { return qtTrId("table"); }, portrait},
    SectionFacts{Section::comment, "comment", [] { return qtTrId("comment"); }, portrait},
    SectionFacts{Section::SWStatistics, "SWStatistics", [] { return qtTrId("SWStatistics"); }, portrait},
};

std::optional<Section> find(auto&& matches) {
    const auto* found = std::ranges::find_if(table, matches);
    return found == table.end() ? std::nullopt : std::optional(found->section);
}

} // namespace

std::span<const SectionFacts> sections() { return table; }

const SectionFacts& facts(Section section) { return table.at(static_cast<std::size_t>(section)); }

std::optional<Section> sectionByKey(const QString& key) {
    return find([&](const SectionFacts& row) { return key == QLatin1StringView(row.key); });
}

bool namesLeftOut(Section section) { return section == Section::table || section == Section::SWStatistics; }

bool onlyCountsLeftOut(Section section) {
    return section == Section::graph || section == Section::histogram || section == Section::correlation
           || section == Section::trend || section == Section::comment;
}

QPageLayout::Orientation getOrientation(std::optional<Section> section) {
    return section ? facts(*section).orientation : landscape;
}

} // namespace zel
