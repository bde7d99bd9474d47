#include "chart/Log.h"

Q_LOGGING_CATEGORY(lcChart, "zel.chart", QtInfoMsg)
