#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/bookmarks/own/BookmarkPaths.h"
#include "modules/bookmarks/own/BrowserProfiles.h"
#include "platform/core/AwaitedAtQuit.h"
#include "platform/files/OpenFile.h"
#include "sync/Log.h"
#include "util/FileUrl.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QUuid>
#include <QVariant>

#include <cerrno>
#include <unordered_map>

// The browser may be running: its database must be neither locked nor changed, and what it wrote
// last lies in a log beside it, which only a private copy of both can be asked for.

namespace {

using ShouldStop = CVSyncBookmarks::ShouldStop;
using Stamps = std::pair<std::optional<FileStamp>, std::optional<FileStamp>>;

constexpr size_t chunkSize = 1U << 20;
constexpr int tries = 5; // while the browser writes

struct Row
{
    enum class Type : int { Bookmark = 1, Folder = 2 };
    Type type;
    qint64 id;
    QString title;
    QString address;
};

struct Rows
{
    std::unordered_map<qint64, std::vector<Row>> children; // by the folder's id, in order
    std::vector<std::pair<qint64, QString>> roots;         // with the names that users know
};

QString rootTitle(const QString &guid)
{
    static const QHash<QString, QString> titles{
        {QStringLiteral("menu________"), QStringLiteral("Bookmarks Menu")},
        {QStringLiteral("toolbar_____"), QStringLiteral("Bookmarks Toolbar")},
        {QStringLiteral("unfiled_____"), QStringLiteral("Other Bookmarks")},
        {QStringLiteral("mobile______"), QStringLiteral("Mobile Bookmarks")},
    };
    return titles.value(guid);
}

QString logOf(const QString &database)
{
    return database + QStringLiteral("-wal");
}

Stamps stampsOf(const QString &database)
{
    return {files().stamp(database), files().stamp(logOf(database))};
}

FileResult<> copy(const QString &source, const QString &destination, const ShouldStop &shouldStop)
{
    auto from = OpenFile::forReading(source);
    if (!from)
        return from.error();
    auto to = OpenFile::forWriting(destination, FileManager::Existing::Refuse);
    if (!to)
        return to.error();
    std::vector<char> buffer(chunkSize);
    while (true) {
        if (shouldStop && shouldStop())
            return FileError::of(FileError::Operation::Read, source, ECANCELED);
        const auto count = from->read(buffer.data(), buffer.size());
        if (!count)
            return count.error();
        if (*count == 0)
            return to->close();
        if (const auto written = to->write(buffer.data(), *count); !written)
            return written.error();
    }
}

FileError failure(const QString &path, const QString &text)
{
    return {FileError::Operation::Parse, path, 0, text};
}

FileResult<Rows> query(QSqlDatabase &database, const QString &path)
{
    if (!database.open())
        return failure(path, database.lastError().text());
    QSqlQuery query(database);
    query.setForwardOnly(true);
    const bool isDone = query.exec(
        QStringLiteral("SELECT b.type, b.id, b.parent, b.title, b.guid, p.url FROM moz_bookmarks b "
                       "LEFT JOIN moz_places p ON p.id = b.fk ORDER BY b.parent, b.position"));
    Rows rows;
    while (query.next()) {
        const qint64 id = query.value(1).toLongLong();
        if (const QString title = rootTitle(query.value(4).toString()); !title.isEmpty())
            rows.roots.emplace_back(id, title);
        else
            rows.children[query.value(2).toLongLong()].push_back(
                {static_cast<Row::Type>(query.value(0).toInt()), id, query.value(3).toString(),
                 query.value(5).toString()});
    }
    if (!isDone || query.lastError().isValid())
        return failure(path, query.lastError().text());
    return rows;
}

/// As it stands, without a lock: `options` must keep the library from changing anything there.
FileResult<Rows> rowsIn(const QString &path, const QString &name, const QString &options)
{
    const QString connection = QUuid::createUuid().toString();
    FileResult<Rows> rows = failure(path, QStringLiteral("there is no driver for it"));
    if (QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(name);
        database.setConnectOptions(options);
        rows = query(database, path);
    }
    QSqlDatabase::removeDatabase(connection);
    return rows;
}

FileResult<Rows> readOnce(const QString &path, const Stamps &stamps, const ShouldStop &shouldStop)
{
    if (!stamps.second || stamps.second->size == 0) {
        const QString url = QString::fromStdString(FileUrl::of(path.toStdString()));
        return rowsIn(path, url + QStringLiteral("?immutable=1"),
                      QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_OPEN_READONLY"));
    }
    const AwaitedAtQuit untilRemoved;
    const QTemporaryDir folder; // for us alone to see
    const QString own = folder.filePath(QStringLiteral("places.sqlite"));
    if (const auto copied = copy(path, own, shouldStop); !copied)
        return copied.error();
    if (const auto copied = copy(logOf(path), logOf(own), shouldStop); !copied)
        return copied.error();
    // What changed meanwhile is found out before the copy is asked.
    return stampsOf(path) == stamps ? rowsIn(path, own, {}) : Rows();
}

bool wasStopped(const FileResult<Rows> &rows)
{
    return !rows && rows.error().number == ECANCELED;
}

FileResult<Rows> readRows(const QString &path, const ShouldStop &shouldStop)
{
    for (int i = 0; i < tries; ++i) {
        const Stamps before = stampsOf(path);
        if (!before.first)
            return FileError::of(FileError::Operation::Read, path, ENOENT);
        FileResult<Rows> rows = readOnce(path, before, shouldStop);
        if (wasStopped(rows) || stampsOf(path) == before)
            return rows;
    }
    return FileError::of(FileError::Operation::Read, path, EBUSY);
}

/// A folder's own bookmarks, then those of the folders inside. Each is taken out, so that rows that
/// lead in a circle end.
void addFolder(Rows &rows, qint64 top, const QString &topPath, BookmarkPaths &paths)
{
    std::vector<std::pair<qint64, QString>> waiting{{top, topPath}};
    while (!waiting.empty()) {
        const auto [id, path] = waiting.back();
        waiting.pop_back();
        const auto found = rows.children.extract(id);
        if (found.empty())
            continue;
        for (const Row &row : found.mapped()) {
            if (row.type == Row::Type::Bookmark && !row.address.isEmpty() &&
                !row.address.startsWith(u"place:"))
                paths.add(path, {row.title, row.address});
        }
        for (auto row = found.mapped().rbegin(); row != found.mapped().rend(); ++row) {
            if (row->type == Row::Type::Folder)
                waiting.emplace_back(row->id, BookmarkPaths::inside(path, row->title));
        }
    }
}

} // namespace

CVSyncBookmarks::FolderList CVSyncBookmarks::readFirefoxDatabase(const ShouldStop &shouldStop)
{
    const QString path = BrowserProfiles::firefoxDatabase();
    FileResult<Rows> rows = readRows(path, shouldStop);
    if (!rows) {
        if (!rows.error().isMissing() && !wasStopped(rows))
            qCWarning(lcModules).noquote()
                << "Can't read the bookmarks:" << rows.error().description();
        return rows.error();
    }
    BookmarkPaths paths;
    for (const auto &[id, title] : rows->roots)
        addFolder(*rows, id, title, paths);
    return paths.takeFolders();
}
