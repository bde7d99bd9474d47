#pragma once

#include <QPageLayout>
#include <QString>

#include <optional>
#include <span>

namespace zel {

enum class Section {
    summary,
    graph,
    PatientProfile,
    histogram,
    correlation,
    trend,
    table,
    comment,
    SWStatistics
};

/// One section of the report.
struct SectionFacts {
    Section section;
    const char* key;   ///< as commands name it
    QString (*text)(); ///< as the user reads it, on the page and in the list of sections
    QPageLayout::Orientation orientation;
};

/// In the order of Section.
[[nodiscard]] std::span<const SectionFacts> sections();
[[nodiscard]] const SectionFacts& facts(Section section);
[[nodiscard]] std::optional<Section> sectionByKey(const QString& key);
/// Whether the section is followed by the readings that are left out, with their reasons.
[[nodiscard]] bool namesLeftOut(Section section);
/// Whether it only counts them, and so is followed by their reasons where no other section names them all.
[[nodiscard]] bool onlyCountsLeftOut(Section section);
/// Landscape for no section, too.
[[nodiscard]] QPageLayout::Orientation getOrientation(std::optional<Section> section);

} // namespace zel
