#pragma once

#include "chart/Picture.h"
#include "report/DrawComment.h"
#include "report/DrawPatient.h"
#include "report/ReportSource.h"

namespace zel {

/// What the marks of the reading table mean, in lines that stand on \p at: smaller and more of them where
/// they would be cut.
void drawTableLegend(Picture& picture, const ReportSource& report, bool isCommentCut, Point at, double width);
/// The same for the comments' page.
void drawCommentLegend(Picture& picture, const CommentPages& comments, Point at, double width);
/// That the profile's form has cut texts, which stand in full behind it.
void drawPatientNote(Picture& picture, const PatientPages& profile, int page, Point at, double width);

} // namespace zel
