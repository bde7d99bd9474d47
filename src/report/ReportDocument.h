#pragma once

#include "report/PrintView.h"

#include <span>
#include <vector>

namespace zel {

/// Several sections as one document, whose pages are numbered through.
class ReportDocument {
public:
    struct Page {
        Section section;
        int number = 1; ///< of its section, from 1
    };

    /// \p view must outlive it.
    ReportDocument(const PrintView& view, std::span<const Section> sections);

    [[nodiscard]] const std::vector<Page>& pages() const { return list; }
    /// Those asked for that have no page.
    [[nodiscard]] const std::vector<Section>& emptySections() const { return empty; }
    /// By its index in pages().
    [[nodiscard]] Picture page(std::size_t index) const;

private:
    const PrintView& view;
    PagePlace place; ///< what is common to all pages
    std::vector<Page> list;
    std::vector<Section> empty;
};

} // namespace zel
