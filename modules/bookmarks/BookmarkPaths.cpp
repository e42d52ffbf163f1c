#include "modules/bookmarks/own/BookmarkPaths.h"

void BookmarkPaths::add(const QString &path, const Bookmark &bookmark)
{
    const auto known = m_places.constFind(path);
    const size_t place = known == m_places.cend() ? m_folders.size() : *known;
    if (known == m_places.cend()) {
        m_places.insert(path, place);
        m_folders.push_back({path, 0, {}});
    }
    BookmarkFolder &folder = m_folders[place];
    ++folder.size;
    const QString &title = bookmark.title.isEmpty() ? bookmark.address : bookmark.title;
    folder.bookmarks.push_back({title, bookmark.address});
}
