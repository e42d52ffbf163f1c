#include "app/Log.h"

Q_LOGGING_CATEGORY(lcApp, "caravel.app")
