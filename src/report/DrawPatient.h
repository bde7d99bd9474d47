#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"
#include "report/TextPages.h"

#include <QStringList>

namespace zel {

/// A text of the profile that its field cuts.
struct CutText {
    QString label;
    QStringList lines; ///< all of it, as wide as the page
};

/// How a patient's profile lies on pages: the form, and behind it in full what the form had to cut.
struct PatientPages {
    std::vector<CutText> cut;
    TextPages more; ///< after the form's page; none if nothing is cut
};
/// On pages with that body.
[[nodiscard]] PatientPages layOutPatient(const ReportSource& report, const Rect& rect);

/// One page of the profile, counted from 1; the first is the form.
void drawPatient(Picture& picture, const ReportSource& report, const PatientPages& layout, const Rect& rect,
                 int page);

} // namespace zel
