#pragma once

#include <QString>

/// The folders on the computer that are ours.
namespace Folders {

/// The documents folder: the setting `CaravelFolder`, "~" expanded, with "Caravel" appended.
QString documents();

/// "~/Library/Application Support/Caravel", "~" expanded.
QString support();

/// "Dropboxes/<name>" in the documents folder.
QString dropbox(const QString &name);

} // namespace Folders
