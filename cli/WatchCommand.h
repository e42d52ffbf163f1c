#pragma once

#include "cli/ExitStatus.h"

/// `caravel watch`: the state now and each change of it, alerts and lines of the log, until Ctrl-C.
/// As JSON one object a line, its "event" being "state", "alert", "finished" or "log".
ExitStatus runWatch(bool json);

enum class LogMode { Show, Follow, Clear };

/// `caravel log`. As JSON {"log": text}, and one {"line": text} each when following.
ExitStatus runLog(LogMode mode, bool json);
