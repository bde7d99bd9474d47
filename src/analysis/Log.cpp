#include "analysis/Log.h"

Q_LOGGING_CATEGORY(lcAnalysis, "zel.analysis", QtInfoMsg)
