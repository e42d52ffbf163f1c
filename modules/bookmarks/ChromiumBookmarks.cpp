#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/bookmarks/own/BookmarkPaths.h"
#include "modules/bookmarks/own/BrowserProfiles.h"
#include "platform/files/FileManager.h"
#include "sync/Log.h"
#include "util/PathComponents.h"
#include "util/TextFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

namespace {

struct Root
{
    QLatin1StringView key;
    QLatin1StringView title;
};

constexpr Root roots[] = {
    {QLatin1StringView("bookmark_bar"), QLatin1StringView("Bookmarks Bar")},
    {QLatin1StringView("other"), QLatin1StringView("Other Bookmarks")},
    {QLatin1StringView("synced"), QLatin1StringView("Mobile Bookmarks")},
};

// No deeper than the parser of the file goes.
void addFolder(const QJsonObject &folder, const QString &path, BookmarkPaths &paths)
{
    const QJsonArray children = folder.value(QLatin1StringView("children")).toArray();
    const auto text = [](const QJsonObject &node, const char *key) {
        return node.value(QLatin1StringView(key)).toString();
    };
    for (const QJsonValue &child : children) {
        const QJsonObject node = child.toObject();
        if (const QString address = text(node, "url"); !address.isEmpty())
            paths.add(path, {text(node, "name"), address});
    }
    for (const QJsonValue &child : children) {
        const QJsonObject node = child.toObject();
        if (text(node, "type") == u"folder")
            addFolder(node, BookmarkPaths::inside(path, text(node, "name")), paths);
    }
}

FileResult<> addFile(const QString &path, BookmarkPaths &paths)
{
    const auto contents = files().readFile(path, TextFile::defaultLimit);
    if (!contents)
        return contents.error();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(*contents, &error);
    const QJsonValue found = document.object().value(QLatin1StringView("roots"));
    if (!found.isObject()) {
        const bool isJson = error.error == QJsonParseError::NoError;
        return FileError{FileError::Operation::Parse, path, 0,
                         isJson ? QStringLiteral("it holds no bookmarks") : error.errorString()};
    }
    for (const Root &root : roots)
        addFolder(found.toObject().value(root.key).toObject(), root.title, paths);
    return {};
}

} // namespace

CVSyncBookmarks::FolderList CVSyncBookmarks::readChromiumBookmarks()
{
    const QString path = BrowserProfiles::chromiumFile();
    if (path.isEmpty())
        return FileError::of(FileError::Operation::Read, path, ENOENT);
    BookmarkPaths paths;
    FileResult<> added = addFile(path, paths);
    // Those of the account that the browser is signed in to.
    const QString account = PathComponents::folderOf(path) + QStringLiteral("/AccountBookmarks");
    if (added && files().exists(account))
        added = addFile(account, paths);
    if (!added) {
        qCWarning(lcModules).noquote()
            << "Can't read the bookmarks:" << added.error().description();
        return added.error();
    }
    return paths.takeFolders();
}
