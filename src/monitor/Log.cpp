#include "monitor/Log.h"

Q_LOGGING_CATEGORY(lcMonitor, "zel.monitor", QtInfoMsg)
