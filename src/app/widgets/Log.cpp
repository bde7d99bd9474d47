#include "app/widgets/Log.h"

Q_LOGGING_CATEGORY(lcApp, "zel.app", QtInfoMsg)
