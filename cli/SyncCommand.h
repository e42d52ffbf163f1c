#pragma once

#include "cli/ExitStatus.h"

/// `caravel sync`: starts a sync and, unless told not to wait, shows it to its end. Ctrl-C cancels
/// the sync and waits for its end; a second one leaves at once.
ExitStatus runSync(bool wait);

/// `caravel cancel`.
ExitStatus runCancel();
