#pragma once

/// What `caravel` exits with. Scripts rely on the numbers.
enum ExitStatus {
    Done = 0,
    Refused = 1, ///< the helper refused, or a sync was cancelled
    BadUsage = 2,
    NoHelper = 3,
};
