#pragma once

#include "sync/ModuleKind.h"

class Clock;

/// The kinds of media that there are, in the order in which a run takes them. The clock is not
/// owned and outlives the kinds' modules.
ModuleCatalogue catalogue(const Clock &clock);
