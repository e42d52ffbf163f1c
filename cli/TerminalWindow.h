#pragma once

/// For a start from the desktop rather than from a shell.
namespace TerminalWindow {

/// Whether this process has a display but no terminal to show anything on.
bool isNeeded();

/// Starts this program's `watch` in a terminal window of its own; false where the desktop offers no
/// terminal.
bool openWatch();

} // namespace TerminalWindow
