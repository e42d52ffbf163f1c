#include "modules/bookmarks/BookmarkSource.h"

#include <algorithm>
#include <utility>

void BookmarkFolderMap::store(const QString &title)
{
    if (const auto earlier = m_places.constFind(title); earlier != m_places.constEnd())
        m_folders[*earlier] = {};
    m_places.insert(title, m_folders.size());
    m_folders.push_back({title, 0, {}});
}

void BookmarkFolderMap::add(const Bookmark &bookmark)
{
    if (m_folders.empty())
        return;
    ++m_folders.back().size;
    m_folders.back().bookmarks.push_back(bookmark);
}

std::vector<BookmarkFolder> BookmarkFolderMap::takeFolders()
{
    m_places.clear();
    std::vector<BookmarkFolder> folders = std::exchange(m_folders, {});
    folders.erase(
        std::remove_if(folders.begin(), folders.end(),
                       [](const BookmarkFolder &folder) { return !folder.title.has_value(); }),
        folders.end());
    return folders;
}

std::optional<QStringView> textBetween(QStringView line, QStringView front, QStringView back)
{
    const qsizetype frontAt = line.indexOf(front);
    const qsizetype start = frontAt + front.size();
    const qsizetype end = line.indexOf(back);
    if (frontAt < 0 || end < start)
        return std::nullopt;
    return line.mid(start, end - start);
}
