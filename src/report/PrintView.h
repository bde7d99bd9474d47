#pragma once

#include "chart/Picture.h"
#include "chart/TextWidths.h"
#include "report/DrawComment.h"
#include "report/DrawPatient.h"
#include "report/LeftOutList.h"
#include "report/PageFrame.h"
#include "report/ReportSource.h"
#include "report/Section.h"

#include <QPageSize>
#include <QSizeF>

#include <map>
#include <optional>
#include <utility>

namespace zel {

/// The pages of a patient's report. A page is computed from the source alone, in any order.
class PrintView {
public:
    /// What \p report refers to must outlive the view. \p paper is upright.
    PrintView(ReportSource report, const QPageSize& paper);

    /// Pages of the section where it stands alone, with those behind it that name the readings left out; one,
    /// without a body, for none. An empty table or comment list has no page.
    [[nodiscard]] int getTotalPages(std::optional<Section> printSelection) const;
    /// The same without those behind it, where another section names them.
    [[nodiscard]] int ownPages(std::optional<Section> printSelection) const;
    /// Those behind it, where it is a part of a document that has to name these.
    [[nodiscard]] int pagesBehind(Section section, const LeftOutScope& scope) const;
    /// Whether all readings left out that a document has to name stand whole on its summary.
    [[nodiscard]] bool namesAllOnSummary(const PagePlace& place) const;
    /// Turned by the section's orientation.
    [[nodiscard]] PageGeometry geometry(std::optional<Section> printSelection) const;
    /// The page, counted from 1, in points of the paper of geometry().
    [[nodiscard]] Picture page(std::optional<Section> printSelection, int number) const;
    /// The same where the section is a part of a document.
    [[nodiscard]] Picture page(std::optional<Section> printSelection, int number,
                               const PagePlace& place) const;

    [[nodiscard]] const ReportSource& report() const { return source; }
    [[nodiscard]] const QPageSize& paper() const { return paperSize; }
    void setNeedPhysicianInfo(bool need) { source.needPhysicianInfo = need; }

private:
    /// What stands on all pages of a section but the first, and is worked out from all readings.
    struct Head {
        Picture patient, title;
    };
    [[nodiscard]] Head head(const PageGeometry& at, Section section, const PagePlace& place) const;
    void drawLegend(Picture& picture, const PageGeometry& at, Section section, bool isCommentCut) const;
    void drawBody(Picture& picture, const PageGeometry& at, Section section, int number,
                  const LeftOutScope& scope) const;
    void drawSummaryStat(Picture& picture, const PageGeometry& at, int number) const;

    [[nodiscard]] const CommentPages& comments() const;
    [[nodiscard]] const PatientPages& profile() const;
    [[nodiscard]] const LeftOutPages& leftOut(Section section, const LeftOutScope& scope) const;

    ReportSource source;
    QPageSize paperSize;
    mutable std::optional<double> titleHeight; ///< of the patient's lines
    // Worked out when the section is first asked for: texts may be long, and many.
    mutable std::optional<CommentPages> commentPages;
    mutable std::optional<PatientPages> patientPages;
    mutable std::map<std::pair<QPageLayout::Orientation, LeftOutScope>, LeftOutPages> leftOutLists;
    mutable std::map<Section, Head> heads;
    mutable std::map<std::pair<Section, bool>, Picture> legends; ///< of tables, by whether a comment is cut
    mutable TextWidths widths;                                   ///< of the tables' cells
};

} // namespace zel
