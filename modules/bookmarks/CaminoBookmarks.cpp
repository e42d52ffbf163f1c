#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/bookmarks/own/BookmarkList.h"

using namespace BookmarkList;

namespace {

std::optional<Bookmark> bookmarkOf(const QVariantMap &entry)
{
    const auto address = text(entry, QStringLiteral("URL"));
    if (!address)
        return std::nullopt;
    return Bookmark{text(entry, QStringLiteral("Title")).value_or(*address), *address};
}

void addBookmarksOf(const QVariantMap &folder, BookmarkFolderMap &folders)
{
    for (const QVariant &child : children(folder)) {
        if (const auto bookmark = bookmarkOf(dictionary(child)))
            folders.add(*bookmark);
    }
}

void addChild(const QVariantMap &child, BookmarkFolderMap &folders)
{
    if (const auto bookmark = bookmarkOf(child))
        folders.add(*bookmark);
    else if (child.contains(QStringLiteral("FolderType")))
        addBookmarksOf(child, folders);
}

} // namespace

CVSyncBookmarks::FolderList CVSyncBookmarks::parseCaminoBookmarks()
{
    const FileResult<QVariantList> entries =
        topLevelEntries(placeOf(Settings::BookmarkBrowser::Camino));
    if (!entries)
        return entries.error();
    BookmarkFolderMap folders;
    for (const QVariant &value : *entries) {
        const QVariantMap entry = dictionary(value);
        const auto title = text(entry, QStringLiteral("Title"));
        if (!title)
            continue;
        folders.store(*title);
        for (const QVariant &child : children(entry))
            addChild(dictionary(child), folders);
    }
    return folders.takeFolders();
}
