#pragma once
// What stands around the body of every page.

#include "chart/Picture.h"
#include "report/LeftOutReadings.h"
#include "report/PageGeometry.h"
#include "report/ReportSource.h"
#include "report/Section.h"

#include <QStringList>

namespace zel {

/// Where a page stands in its document, and what its pages have to know of the others.
struct PagePlace {
    int number = 1; ///< from 1
    int total = 1;
    QStringList emptySections{};      ///< that were asked for, too; as the user reads them
    LeftOutScope leftOut{};           ///< which readings its pages of those left out name
    std::optional<Section> namedIn{}; ///< the section that these pages follow
    bool hasComments = false;         ///< a section has all comments in full
};

/// Room that the patient title takes at the head of the body.
[[nodiscard]] double patientTitleHeight();
/// Name, ID and reporting period, and how many readings count in it. The ID stays readable beside a name of
/// any length.
void drawPatientTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, Section section,
                      const PagePlace& place);
/// The band with the section's name, the program's and today's date; in a demonstration it has that all is
/// invented in the program's place.
void drawTitle(Picture& picture, const PageGeometry& at, const ReportSource& report, const QString& section);
/// What a document's first page says of the sections that it lacks; empty elsewhere.
[[nodiscard]] QString emptyText(const PagePlace& place);
void drawLogo(Picture& picture, const PageGeometry& at);
/// The logo, and the practitioner's details if they are wanted.
void drawFooter(Picture& picture, const PageGeometry& at, const ReportSource& report);
void drawPageNumber(Picture& picture, const PageGeometry& at, const PagePlace& place);

/// The foot of the footer beside the logo, where a legend stands.
[[nodiscard]] Point legendPlace(const PageGeometry& at);
[[nodiscard]] double legendWidth(const PageGeometry& at);

} // namespace zel
