#include "util/Log.h"

Q_LOGGING_CATEGORY(lcUtil, "caravel.util")
