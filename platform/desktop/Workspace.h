#pragma once

#include <QString>

/// What the desktop does for its programs with files. Main thread.
namespace Workspace {

/// Opens a path: a bundle's executable is started, detached; anything else goes to the desktop's
/// opener. False when nothing could be started.
bool openFile(const QString &path);

/// Moves a file or folder to the user's Trash; false (and the file stays) where that fails. Any
/// thread.
bool recycle(const QString &path);

/// Tells the desktop that something changed in a folder, so that it draws it anew; passed over for
/// what is no folder. Any thread.
void noteFileSystemChanged(const QString &path);

} // namespace Workspace
