#pragma once

#include "platform/files/FileError.h"

#include <QByteArray>

#include <optional>

/// The platform's typed-stream archive of one boxed unsigned 64-bit number, as sticks carry it in
/// "LastSyncSize".
///
/// Layout: 04, 0B "streamtyped" (little-endian; "typedstream" is the big-endian form), the system
/// version 1000, then 84 01 "@" | 84 84 84 08 "NSNumber" 00 | 84 84 07 "NSValue" 00 |
/// 84 84 08 "NSObject" 00 | 85 | 84 01 "*" | 84 84 01 "Q" | 97 | the number | 86.
/// An integer is one byte as it stands unless that byte is 80 to 91 (hex); 81 leads two bytes, 82
/// four and 87 eight, in the stream's byte order. 84 opens something new, 85 is nil, 86 ends an
/// object, 92 upwards refer back to an earlier string or object.
namespace NumberArchive {

/// The number archived in the bytes, written by any system in either byte order and with any
/// integer type code; nothing where the bytes are no such archive. Never reads outside them.
std::optional<quint64> decode(const QByteArray &archive);

/// The number archived in a file; Parse where it is no such archive.
FileResult<quint64> read(const QString &path);

/// Little-endian archive of the number.
QByteArray encode(quint64 number);

} // namespace NumberArchive
