#pragma once

#include "platform/lists/PropertyListReader.h"

#include <QVariant>

#include <optional>

/// Property lists as trees. A dictionary is a QVariantMap, an array a QVariantList, a string a
/// QString, an integer qlonglong (qulonglong above its range), a real double, a boolean bool, a
/// date a QDateTime in UTC, data a QByteArray. Any thread.
namespace PropertyList {

/// Largest list that is read by default, in bytes.
inline constexpr quint64 defaultLimit = 64ULL << 20;

/// Reads a list, XML or binary. Nothing when the file is missing (`error` then stays empty), longer
/// than the limit, or no property list (`error` says what and where).
std::optional<QVariant> read(const QString &path, quint64 limit = defaultLimit,
                             PropertyListError *error = nullptr);

/// Convenience for lists of strings, as sync indexes and selections are: entries of another type
/// are left out; nothing when the file's root is no array. A file that exists but can't be used is
/// named in the system log.
std::optional<QStringList> readStringArray(const QString &path);

/// The list as an XML document. Values of a type that no list can hold are left out.
QByteArray toXml(const QVariant &root);

/// Writes the list as XML in the place of the old file, atomically. On failure the old file stays
/// and `reason` (may be null) gets the system's text.
bool writeAtomically(const QVariant &root, const QString &path, QString *reason = nullptr);

} // namespace PropertyList
