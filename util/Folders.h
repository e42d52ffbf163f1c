#pragma once

#include <QString>

/// The folders on the computer that are ours.
namespace Folders {

/// Whether the setting `CaravelFolder` can be that: a full path, or one that begins with "~/".
bool isPlace(const QString &setting);

/// The documents folder: the setting `CaravelFolder` (its default where it is no place), "~"
/// expanded, with "Caravel" appended.
QString documents();

/// "~/Library/Application Support/Caravel", "~" expanded.
QString support();

/// Where the user keeps music: as the desktop says (user-dirs.dirs), else "~/Music". Absolute.
QString music();

/// The same for pictures, else "~/Pictures".
QString pictures();

/// "Dropboxes/<name>" in the documents folder.
QString dropbox(const QString &name);

} // namespace Folders
