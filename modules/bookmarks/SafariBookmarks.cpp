#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/bookmarks/own/BookmarkList.h"

using namespace BookmarkList;

namespace {

enum class Kind { Other, Leaf, Folder };

Kind kindOf(const QVariantMap &node)
{
    const auto type = text(node, QStringLiteral("WebBookmarkType"));
    if (type == u"WebBookmarkTypeLeaf")
        return Kind::Leaf;
    return type == u"WebBookmarkTypeList" ? Kind::Folder : Kind::Other;
}

void addLeaf(const QVariantMap &leaf, std::vector<Bookmark> &bookmarks)
{
    const auto address = text(leaf, QStringLiteral("URLString"));
    if (!address)
        return;
    const QVariantMap names = dictionary(leaf.value(QStringLiteral("URIDictionary")));
    bookmarks.push_back({text(names, QStringLiteral("title")).value_or(*address), *address});
}

void addLeavesOf(const QVariantMap &folder, std::vector<Bookmark> &bookmarks)
{
    for (const QVariant &child : children(folder)) {
        if (const QVariantMap node = dictionary(child); kindOf(node) == Kind::Leaf)
            addLeaf(node, bookmarks);
    }
}

BookmarkFolder folderOf(const QVariantMap &node)
{
    const QVariantList nodes = children(node);
    BookmarkFolder folder{text(node, QStringLiteral("Title")), static_cast<int>(nodes.size()), {}};
    for (const QVariant &value : nodes) {
        const QVariantMap child = dictionary(value);
        const Kind kind = kindOf(child);
        if (kind == Kind::Leaf)
            addLeaf(child, folder.bookmarks);
        else if (kind == Kind::Folder)
            addLeavesOf(child, folder.bookmarks);
    }
    return folder;
}

} // namespace

CVSyncBookmarks::FolderList CVSyncBookmarks::readSafariBookmarks()
{
    const FileResult<QVariantList> entries =
        topLevelEntries(placeOf(Settings::BookmarkBrowser::Safari));
    if (!entries)
        return entries.error();
    std::vector<BookmarkFolder> folders;
    for (const QVariant &entry : *entries) {
        if (const QVariantMap node = dictionary(entry); kindOf(node) == Kind::Folder)
            folders.push_back(folderOf(node));
    }
    return folders;
}
