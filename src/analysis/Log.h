#pragma once
// Diagnostics for the system log. Lines that carry a patient's figures are debug lines, off unless asked for
// (QT_LOGGING_RULES="zel.*.debug=true").

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcAnalysis)
