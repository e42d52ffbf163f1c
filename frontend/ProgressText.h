#pragma once

#include "frontend/HelperState.h"

#include <chrono>
#include <optional>

/// The texts of a progress display.
namespace ProgressText {

/// "0:07", "12:34" or "1:02:03".
QString duration(std::chrono::seconds time);

/// Done per cent, 0 to 100, rounded down; nothing where the counts say nothing.
std::optional<int> percent(const HelperState &state);

/// "45% (1.2 MB of 3.4 MB)".
QString amount(const HelperState &state);

/// "2 MB/s, 0:03 left" at so many bytes per second; empty while nothing moves.
QString pace(const HelperState &state, std::optional<double> rate);

} // namespace ProgressText
