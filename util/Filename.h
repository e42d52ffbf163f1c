#pragma once

#include <QString>

namespace FileManagerTools {

/// A title as a file name that a FAT file system takes: `: / ? < > | * \` become "_", `"` becomes
/// "'", a last "." becomes "_", canonically decomposed (NFD), trimmed. Its length is not limited.
QString makeFilename(const QString &title);

} // namespace FileManagerTools
