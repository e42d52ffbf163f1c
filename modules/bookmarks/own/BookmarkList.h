#pragma once

#include "platform/files/FileError.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

/// Lookups in a browser's bookmarks that are kept as a property list. A value of another type than
/// the one asked for counts as absent.
namespace BookmarkList {

/// The array under "Children" of the list's root. Errors are those of readPropertyList(); one but
/// that the file is missing is in the system log. Any thread.
FileResult<QVariantList> topLevelEntries(const QString &path);

/// The entry's own children.
QVariantList children(const QVariantMap &entry);
std::optional<QString> text(const QVariantMap &entry, const QString &key);
QVariantMap dictionary(const QVariant &value);

} // namespace BookmarkList
