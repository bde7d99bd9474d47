#include "report/ReportDocument.h"

namespace zel {

ReportDocument::ReportDocument(const PrintView& shown, std::span<const Section> sections) : view(shown) {
    for (const Section section : sections) {
        const int total = view.getTotalPages(section);
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
