#pragma once

#include "platform/files/FileError.h"

#include <QString>

#include <functional>

/// Lists of music files as players write them: M3U (.m3u, .m3u8), PLS and XSPF.
namespace PlaylistFile {

/// One entry: where it lies, as the list has it (a path, also with "\" between its components, or
/// an address), and what the list calls it, empty where it says nothing.
using Visitor = std::function<void(const QString &place, const QString &title)>;

/// Whether a file of that extension is such a list; any case.
bool isOne(QStringView extension);

/// Hands the entries over in the order of the list, and gives the list's own title; empty where it
/// has none. Texts are in the encoding that TextFile finds out. Fails where the file can't be read;
/// what is no list has no entries, and neither has a stream's. Any thread.
FileResult<QString> read(const QString &path, const Visitor &visit);

} // namespace PlaylistFile
