#include "platform/core/Log.h"

Q_LOGGING_CATEGORY(lcPlatform, "caravel.platform")
