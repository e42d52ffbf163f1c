#include "modules/saves/own/BackupHistory.h"

#include "platform/core/Clock.h"
#include "platform/desktop/Workspace.h"
#include "platform/files/FileManager.h"
#include "sync/ErrorLog.h"
#include "sync/Log.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"

#include <algorithm>

namespace {

QString backupFolder()
{
    return Folders::documents() + QStringLiteral("/Backup");
}

// Where copies grow until they are whole: beside the history, on the same file system.
QString partialFolder()
{
    return backupFolder() + QStringLiteral("/.partial");
}

QStringList namesIn(const QString &folder)
{
    QStringList names;
    for (const FolderEntry &entry : files().entries(folder))
        names.append(entry.path);
    return names;
}

bool flush(const QString &path, FileOperationHandler &handler)
{
    const auto flushed = files().flush(path);
    if (!flushed)
        handler.fileManagerShouldProceedAfterError(flushed.error());
    return bool(flushed);
}

} // namespace

std::optional<Backup> Backup::named(const QString &identifier)
{
    if (PathComponents::count(identifier) != 2)
        return std::nullopt;
    return Backup{PathComponents::folderOf(identifier), PathComponents::lastOf(identifier)};
}

QString Backup::folder() const
{
    return BackupHistory::root() + u'/' + save + u'/' + timestamp + u'/' + save;
}

namespace BackupHistory {

QString root()
{
    return backupFolder() + QStringLiteral("/Game Saves");
}

QStringList saves()
{
    return namesIn(root());
}

QStringList timestampsOf(const QString &save)
{
    return PathComponents::count(save) == 1 ? namesIn(root() + u'/' + save) : QStringList();
}

double timestampOf(const QString &name)
{
    qsizetype digits = 0;
    while (digits < name.size() && name[digits] >= u'0' && name[digits] <= u'9')
        ++digits;
    constexpr double latest = 9e15; // what a date and a number of either kind can hold
    const double timestamp = name.first(digits).toDouble();
    return timestamp <= latest ? timestamp : 0;
}

double latestTimestampOf(const QString &save)
{
    QString newest;
    for (const QString &name : timestampsOf(save)) {
        if (timestampOf(name) > 0)
            newest = std::max(newest, name);
    }
    return timestampOf(newest);
}

QString newFolder(const QString &save, const Clock &clock)
{
    const QString folder = root() + u'/' + save + u'/';
    // Two within one second, or under a clock that was set back, must not meet.
    const qint64 now = (clock.now().toMSecsSinceEpoch() + 500) / 1000;
    qint64 timestamp = std::max(now, static_cast<qint64>(latestTimestampOf(save)) + 1);
    while (files().linkStatus(folder + QString::number(timestamp)).exists())
        ++timestamp;
    return folder + QString::number(timestamp);
}

bool keep(const QString &source, const QString &newFolder, FileOperationHandler &handler)
{
    const QString partial = partialFolder();
    if (files().linkStatus(partial).exists())
        files().remove(partial, &handler); // of a run that was interrupted
    FileManagerTools::createPath(partial);
    FileManagerTools::createPath(PathComponents::folderOf(newFolder));
    bool whole = files().copy(source, partial + u'/' + PathComponents::lastOf(source), &handler);
    whole = whole && flush(partial, handler) && files().move(partial, newFolder, &handler);
    // What a restore takes off the stick next may be the only other copy.
    if (whole && flush(root(), handler))
        return true;
    files().remove(partial, nullptr);
    if (whole)
        files().remove(newFolder, nullptr);
    return false;
}

void prune(qsizetype kept)
{
    ErrorLog errors;
    for (const QString &save : saves()) {
        QStringList names = timestampsOf(save);
        std::sort(names.begin(), names.end());
        for (qsizetype i = 0; i < names.size() - kept; ++i)
            files().remove(root() + u'/' + save + u'/' + names[i], &errors);
    }
}

bool moveToTrash(const QString &identifier)
{
    const QString path = root() + u'/' + identifier;
    const qsizetype components = PathComponents::count(identifier);
    if ((components == 1 || components == 2) && files().linkStatus(path).exists())
        return Workspace::recycle(path);
    qCWarning(lcModules).noquote() << "There is no backup to delete named" << identifier;
    return false;
}

} // namespace BackupHistory
