#pragma once

#include "modules/bookmarks/BookmarkSource.h"

/// Folders of bookmarks that lie in each other, as one list: each that holds bookmarks itself goes
/// by its path. Folders with the same path are one.
class BookmarkPaths
{
public:
    /// To the folder at that path. Without a title the bookmark goes by its address.
    void add(const QString &path, const Bookmark &bookmark);

    /// In the order in which the folders had their first bookmarks. Leaves none.
    std::vector<BookmarkFolder> takeFolders() { return std::move(m_folders); }

    /// The path of a folder inside another.
    static QString inside(const QString &path, const QString &title) { return path + u'/' + title; }

private:
    std::vector<BookmarkFolder> m_folders;
    QHash<QString, size_t> m_places;
};
