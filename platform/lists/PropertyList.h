#pragma once

#include "platform/lists/PropertyListReader.h"

#include <QStringList>
#include <QVariant>

/// Property lists as trees. A dictionary is a QVariantMap, an array a QVariantList, a string a
/// QString, an integer qlonglong (qulonglong above its range), a real double, a boolean bool, a
/// date a QDateTime in UTC, data a QByteArray. Any thread.
namespace PropertyList {

/// Largest list that is read by default, in bytes.
inline constexpr quint64 defaultLimit = 64ULL << 20;

/// Reads a list, XML or binary. Errors are those of readPropertyList().
FileResult<QVariant> read(const QString &path, quint64 limit = defaultLimit);

/// The same for a list whose root must be a dictionary.
FileResult<QVariantMap> readDictionary(const QString &path);

/// The same for lists of strings, as sync indexes and selections are: entries of another type are
/// left out. A file that exists but can't be used is named in the system log.
FileResult<QStringList> readStringArray(const QString &path);

/// The strings of an array.
QStringList stringsIn(const QVariantList &entries);

/// Of a list that couldn't be read, for logs: "PATH:LINE: TEXT", without the line where there is
/// none.
QString logText(const FileError &error);

/// The list as an XML document. Values of a type that no list can hold are left out; empty where
/// the root is one.
QByteArray toXml(const QVariant &root);

/// Writes the list as XML in the place of the old file, atomically. On failure the old file stays.
FileResult<> writeAtomically(const QVariant &root, const QString &path);

} // namespace PropertyList
