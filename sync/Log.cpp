#include "sync/Log.h"

Q_LOGGING_CATEGORY(lcSync, "caravel.sync")
