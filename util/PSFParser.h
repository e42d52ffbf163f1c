#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

/// PSF files: the parameters of a game or a game save, as "PARAM.SFO" holds them. Any thread.
namespace PSFParser {

/// Name to value, every value as text: of an integer its signed decimal digits, of binary data
/// "Binary". Names and text are cut after 511 bytes; a parameter whose text is no UTF-8 is left
/// out, as is one that points outside the file. Nothing where the file can't be read, is longer
/// than 1 MiB, or is no PSF file; the system log says why while detailed logging is on.
std::optional<QMap<QString, QString>> dictionaryWithPSFFile(const QString &path);

/// The same for a file's contents.
std::optional<QMap<QString, QString>> dictionaryWithPSF(const QByteArray &contents);

} // namespace PSFParser
