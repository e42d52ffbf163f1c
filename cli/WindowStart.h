#pragma once

/// For a start from the desktop rather than from a shell.
namespace WindowStart {

/// Whether this process has a display but no terminal to show anything on.
bool isNeeded();

/// Becomes the window's program that lies beside this one; returns where there is none.
void becomeWindow();

} // namespace WindowStart
