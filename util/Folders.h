#pragma once

#include <QString>

/// The folders on the computer that are ours.
namespace Folders {

/// The documents folder: the setting `CaravelFolder`, "~" expanded, with "Caravel" appended. A
/// setting that is no absolute path then counts as its default.
QString documents();

/// "~/Library/Application Support/Caravel", "~" expanded.
QString support();

/// "Dropboxes/<name>" in the documents folder.
QString dropbox(const QString &name);

} // namespace Folders
