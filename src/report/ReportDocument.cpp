#include "report/ReportDocument.h"

#include <algorithm>

namespace zel {

namespace {

bool has(std::span<const Section> sections, Section wanted) {
    return std::ranges::find(sections, wanted) != sections.end();
}

/// The section that the readings left out are named behind: one that always names them, else the last that
/// counts them, unless all of them stand whole on the summary.
std::optional<Section> namedIn(const PrintView& view, std::span<const Section> sections, PagePlace place) {
    const auto naming = std::ranges::find_if(sections, namesLeftOut);
    if (naming != sections.end()) return *naming;
    const auto last = std::find_if(sections.rbegin(), sections.rend(), onlyCountsLeftOut);
    if (last == sections.rend()) return {};
    place.namedIn = *last;
    if (has(sections, Section::summary) && view.namesAllOnSummary(place)) return {};
    return *last;
}

} // namespace

ReportDocument::ReportDocument(const PrintView& shown, std::span<const Section> sections) : view(shown) {
    std::vector<Section> present;
    for (const Section section : sections)
        (view.ownPages(section) > 0 ? present : empty).push_back(section);
    place.leftOut = leftOutScope(present);
    place.hasComments = has(present, Section::comment);
    place.namedIn = namedIn(view, present, place);
    for (const Section section : present) {
        const bool isNaming = namesLeftOut(section) || section == place.namedIn;
        const int behind = isNaming ? view.pagesBehind(section, place.leftOut) : 0;
        const int total = view.ownPages(section) + behind;
        for (int number = 1; number <= total; ++number)
            list.push_back({section, number});
    }
    place.total = static_cast<int>(list.size());
    for (const Section section : empty)
        place.emptySections += facts(section).text();
}

Picture ReportDocument::page(std::size_t index) const {
    const Page& wanted = list.at(index);
    PagePlace here = place;
    here.number = static_cast<int>(index) + 1;
    return view.page(wanted.section, wanted.number, here);
}

} // namespace zel
