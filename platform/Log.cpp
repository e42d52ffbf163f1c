#include "platform/Log.h"

Q_LOGGING_CATEGORY(lcPlatform, "caravel.platform")
