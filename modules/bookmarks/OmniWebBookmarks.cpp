#include "modules/bookmarks/CVSyncBookmarks.h"
#include "util/Entities.h"
#include "util/StringTools.h"
#include "util/TextFile.h"

#include <QStringTokenizer>

namespace {

constexpr QStringView titleEnd = u"</a>";

// Ids have one to five characters; any other is taken to have one. Each ">" that could end one
// counts, those of a title too.
qsizetype headingTitleStart(QStringView line)
{
    constexpr qsizetype idStart = QStringView(u"<dt><h3><a bookmarkid=").size();
    constexpr qsizetype longestId = 5;
    const QStringView front = line.chopped(QStringView(u"</a></h3>").size());
    qsizetype start = idStart + 2;
    for (qsizetype length = 2; length <= longestId; ++length) {
        if (idStart + length < front.size() && front[idStart + length] == u'>')
            start += length - 1;
    }
    return start;
}

std::optional<QString> decodedTitle(QStringView line, qsizetype start)
{
    const qsizetype end = line.indexOf(titleEnd);
    if (end < start)
        return std::nullopt;
    return StringTools::stringByParsingEntities(line.mid(start, end - start).toString());
}

std::optional<Bookmark> bookmarkOf(QStringView line)
{
    const auto title = decodedTitle(line, line.chopped(1).lastIndexOf(u'>') + 1);
    const auto address = textBetween(line, u"href=\"", u"\" bookmarkid=");
    if (!title || !address)
        return std::nullopt;
    return Bookmark{*title, address->toString()};
}

} // namespace

CVSyncBookmarks::FolderList CVSyncBookmarks::parseOmniWebBookmarks()
{
    const FileResult<QString> text = TextFile::read(placeOf(Settings::BookmarkBrowser::OmniWeb));
    if (!text)
        return text.error();
    BookmarkFolderMap folders;
    QString current;
    for (const QStringView line : qTokenize(*text, u'\n')) {
        if (StringTools::isLike(line, u"<dt><h3><a bookmarkid=*>*</a></h3>")) {
            if (const auto title = decodedTitle(line, headingTitleStart(line))) {
                current = *title;
                folders.store(current);
            }
        } else if (!current.isEmpty() &&
                   StringTools::isLike(line, u"<dt><a href=\"*\" bookmarkid=*>*</a>")) {
            if (const auto bookmark = bookmarkOf(line))
                folders.add(*bookmark);
        }
    }
    return folders.takeFolders();
}
