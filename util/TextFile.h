#pragma once

#include "platform/files/FileError.h"

#include <QString>

namespace TextFile {

/// Longest text that is read by default, in bytes.
inline constexpr quint64 defaultLimit = 64ULL << 20;

/// A whole file as text: in the encoding that its byte-order mark names (the mark itself is left
/// out), else in UTF-8, else, where it is no valid UTF-8, in Latin-1. One that is longer
/// than the limit or can't be read is in the system log; one that is missing isn't. Any thread.
FileResult<QString> read(const QString &path, quint64 limit = defaultLimit);

} // namespace TextFile
