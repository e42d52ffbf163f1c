#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

struct Bookmark
{
    QString title;
    QString address;
};

/// A top-level folder of a browser's bookmarks.
struct BookmarkFolder
{
    std::optional<QString> title; ///< as the browser stores it
    int size = 0;                 ///< number of its children, those that are no bookmarks included
    std::vector<Bookmark> bookmarks; ///< what of it goes to the PSP, in order
};

/// Folders by their titles, in the order of their source. A title that comes again replaces the
/// earlier folder with all its bookmarks.
class BookmarkFolderMap
{
public:
    /// The new folder becomes the current one.
    void store(const QString &title);
    /// To the current folder; dropped where there is none.
    void add(const Bookmark &bookmark);

    /// Leaves the map empty.
    std::vector<BookmarkFolder> takeFolders();

private:
    std::vector<BookmarkFolder> m_folders; // a replaced one has no title any more
    QHash<QString, size_t> m_places;
};

/// The part of a line behind the first `front` and up to the first `back`; nothing where one of
/// them is missing or they stand the other way round.
std::optional<QStringView> textBetween(QStringView line, QStringView front, QStringView back);
