#pragma once

#include <QString>

/// The user's Trash, as the desktops keep it.
namespace Trash {

/// Moves what was last put into the Trash from that path back to it. False where the Trash of the
/// user's own disk has no such thing, where something is at the path again, and where it can't be
/// moved. Any thread; reads a small file for each thing in the Trash.
bool putBack(const QString &path);

} // namespace Trash
