#include "modules/bookmarks/CVSyncBookmarks.h"
#include "util/Entities.h"
#include "util/QMINIParser.h"
#include "util/StringTools.h"
#include "util/TextFile.h"

#include <QStringTokenizer>

#include <cerrno>

namespace {

void addHeading(QStringView line, BookmarkFolderMap &folders)
{
    if (const auto title = textBetween(line, u"\">", u"</H3>"))
        folders.store(StringTools::stringByParsingEntities(title->toString()));
}

void addBookmark(QStringView line, BookmarkFolderMap &folders)
{
    const auto title = textBetween(line, u"\">", u"</A>");
    const auto address = textBetween(line, u"HREF=\"", u"\" ");
    if (title && address)
        folders.add({title->toString(), address->toString()});
}

} // namespace

FileResult<QString> CVSyncBookmarks::defaultFirefoxProfile()
{
    const QString folder =
        StringTools::expandingTilde(QStringLiteral("~/Library/Application Support/Firefox"));
    const QString list = folder + QStringLiteral("/profiles.ini");
    const auto values = QMINIParser::parseINI(list);
    if (!values)
        return values.error();
    const auto path = values->constFind(QStringLiteral("Profile0-Path"));
    if (path == values->constEnd())
        return FileError::of(FileError::Operation::Read, list, ENOENT);
    return StringTools::appendingPathComponent(folder, *path);
}

CVSyncBookmarks::FolderList CVSyncBookmarks::parseFirefoxBookmarks()
{
    const FileResult<QString> profile = defaultFirefoxProfile();
    if (!profile)
        return profile.error();
    const FileResult<QString> text = TextFile::read(
        StringTools::appendingPathComponent(*profile, QStringLiteral("bookmarks.html")));
    if (!text)
        return text.error();
    BookmarkFolderMap folders;
    for (const QStringView line : qTokenize(*text, u'\n')) {
        if (StringTools::isLike(line, u"    <DT><H3*</H3>"))
            addHeading(line, folders);
        else if (StringTools::isLike(line, u"*<DT><A*</A>"))
            addBookmark(line, folders);
    }
    return folders.takeFolders();
}
