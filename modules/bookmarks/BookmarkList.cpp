#include "modules/bookmarks/own/BookmarkList.h"

#include "platform/lists/PropertyList.h"
#include "sync/Log.h"

FileResult<QVariantList> BookmarkList::topLevelEntries(const QString &path)
{
    const FileResult<QVariantMap> root = PropertyList::readDictionary(path);
    if (root)
        return children(*root);
    if (!root.error().isMissing()) {
        qCWarning(lcModules).noquote()
            << "Can't read the bookmarks" << PropertyList::logText(root.error());
    }
    return root.error();
}

QVariantList BookmarkList::children(const QVariantMap &entry)
{
    const QVariant value = entry.value(QStringLiteral("Children"));
    return value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList();
}

std::optional<QString> BookmarkList::text(const QVariantMap &entry, const QString &key)
{
    const QVariant value = entry.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

QVariantMap BookmarkList::dictionary(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}
