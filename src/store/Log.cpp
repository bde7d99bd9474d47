#include "store/Log.h"

Q_LOGGING_CATEGORY(lcStore, "zel.store", QtInfoMsg)
