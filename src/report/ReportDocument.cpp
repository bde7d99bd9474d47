#include "report/ReportDocument.h"

#include <algorithm>

namespace zel {

namespace {

/// The section behind which the readings left out are named: the last that counts them, unless another one
/// of the document names them anyway.
std::optional<Section> namedBehind(const PrintView& view, std::span<const Section> sections) {
    const auto isNaming = [&](Section section) {
        return namesLeftOut(section) && view.ownPages(section) > 0;
    };
    if (std::ranges::any_of(sections, isNaming)) return {};
    const auto last = std::find_if(sections.rbegin(), sections.rend(), onlyCountsLeftOut);
    return last == sections.rend() ? std::nullopt : std::optional(*last);
}

} // namespace

ReportDocument::ReportDocument(const PrintView& shown, std::span<const Section> sections) : view(shown) {
    const auto behind = namedBehind(view, sections);
    for (const Section section : sections) {
        const bool isNaming = namesLeftOut(section) || section == behind;
        const int total = isNaming ? view.getTotalPages(section) : view.ownPages(section);
        if (total == 0) empty.push_back(section);
        for (int number = 1; number <= total; ++number)
            list.push_back({section, number});
    }
}

Picture ReportDocument::page(std::size_t index) const {
    const Page& wanted = list.at(index);
    PagePlace place{static_cast<int>(index) + 1, static_cast<int>(list.size()), {}};
    for (const Section section : empty)
        place.emptySections += facts(section).text();
    return view.page(wanted.section, wanted.number, place);
}

} // namespace zel
