#include "modules/Log.h"

Q_LOGGING_CATEGORY(lcModules, "caravel.modules")
