#include "modules/bookmarks/own/FirefoxBookmarks.h"

#include "util/Entities.h"
#include "util/QMINIParser.h"
#include "util/StringTools.h"
#include "util/TextFile.h"

#include <QStringTokenizer>

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

std::optional<QString> defaultFirefoxProfile()
{
    const QString folder =
        StringTools::expandingTilde(QStringLiteral("~/Library/Application Support/Firefox"));
    const auto values = QMINIParser::parseINI(folder + QStringLiteral("/profiles.ini"));
    const auto path = values.constFind(QStringLiteral("Profile0-Path"));
    if (path == values.constEnd())
        return std::nullopt;
    return StringTools::appendingPathComponent(folder, *path);
}

std::vector<BookmarkFolder> parseFirefoxBookmarks()
{
    const std::optional<QString> profile = defaultFirefoxProfile();
    if (!profile)
        return {};
    const QString path =
        StringTools::appendingPathComponent(*profile, QStringLiteral("bookmarks.html"));
    const QString text = TextFile::read(path).value_or(QString());
    BookmarkFolderMap folders;
    for (const QStringView line : qTokenize(text, u'\n')) {
        if (StringTools::isLike(line, u"    <DT><H3*</H3>"))
            addHeading(line, folders);
        else if (StringTools::isLike(line, u"*<DT><A*</A>"))
            addBookmark(line, folders);
    }
    return folders.takeFolders();
}
