#include "sync/Log.h"

Q_LOGGING_CATEGORY(lcSync, "caravel.sync")
Q_LOGGING_CATEGORY(lcModules, "caravel.modules")
