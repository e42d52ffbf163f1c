#include "platform/volumes/own/FolderVolumes.h"

#include "platform/core/Log.h"
#include "platform/core/MainThread.h"
#include "platform/core/own/Posix.h"
#include "platform/volumes/own/VolumeChanges.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

namespace {

QString ejectedFolder(const QString &folder)
{
    return folder + QStringLiteral("/.ejected");
}

QString nearestFolder(QString path)
{
    while (path.size() > 1 && !QFileInfo(path).isDir())
        path = QFileInfo(path).path();
    return path;
}

} // namespace

FolderVolumes::FolderVolumes(const QString &folder, QObject *parent)
    : Volumes(parent)
    , m_folder(QDir::cleanPath(QDir().absoluteFilePath(folder)))
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderVolumes::rescan);
    connect(&m_volumesWatcher, &QFileSystemWatcher::directoryChanged, this,
            [this](const QString &volume) {
                m_changed.insert(volume);
                m_rest.start(std::chrono::seconds(1));
            });
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &FolderVolumes::announceAgain);
    watch();
    m_known = scan();
    watch(m_known, {});
}

std::vector<FolderVolumes::Volume> FolderVolumes::scan() const
{
    const QByteArray folder = Posix::native(m_folder);
    const auto entries =
        Posix::entriesOf(Posix::openFolder(AT_FDCWD, folder.constData(), Posix::Links::Follow));
    std::vector<Volume> volumes;
    for (const Posix::Entry &entry : entries.value_or(std::vector<Posix::Entry>())) {
        const QUtf8StringView name(entry.name.data(), qsizetype(entry.name.size()));
        if (entry.name.front() == '.' || !name.isValidUtf8())
            continue;
        if (entry.kind != Posix::EntryKind::Folder && entry.kind != Posix::EntryKind::Link)
            continue;
        const QString path = m_folder + u'/' + name.toString();
        if (const auto identity = VolumeIdentity::of(path))
            volumes.push_back({path, *identity});
    }
    return volumes;
}

QStringList FolderVolumes::mountedRemovableMedia() const
{
    QStringList paths;
    for (const Volume &volume : scan())
        paths.append(volume.path);
    return paths;
}

Ejection FolderVolumes::unmountAndEject(const QString &path)
{
    const auto refused = [&path](const QString &reason) {
        qCWarning(lcPlatform).noquote() << "Can't eject" << path << ":" << reason;
        return Ejection{.reason = reason};
    };
    if (!mountedRemovableMedia().contains(path))
        return refused(QStringLiteral("no such volume"));
    const QString folder = ejectedFolder(m_folder);
    const QString aside = folder + path.mid(m_folder.size());
    struct stat status;
    if (::lstat(Posix::native(aside).constData(), &status) == 0)
        return refused(aside + QStringLiteral(" is there already"));
    performOnMainThread(
        this, [this, &path] { Q_EMIT willUnmount(path); }, CallMode::Wait);
    ::mkdir(Posix::native(folder).constData(), 0755); // the rename tells when it isn't there
    if (!Posix::renameExclusively(Posix::native(path).constData(),
                                  Posix::native(aside).constData()))
        return refused(Posix::reason(errno));
    // Not left to the watcher, which may have run out of watches.
    performOnMainThread(
        this, [this] { rescan(); }, CallMode::DontWait);
    return {.isDone = true};
}

/// Watches the folder, or the nearest one above it while it doesn't exist.
void FolderVolumes::watch()
{
    QString nearest = nearestFolder(m_folder);
    while (!m_watcher.directories().contains(nearest)) {
        if (const QStringList old = m_watcher.directories(); !old.isEmpty())
            m_watcher.removePaths(old);
        if (!m_watcher.addPath(nearest)) {
            qCWarning(lcPlatform, "Can't watch %s for volumes", qUtf8Printable(nearest));
            return;
        }
        nearest = nearestFolder(m_folder); // it may have come or gone meanwhile
    }
}

void FolderVolumes::watch(const std::vector<Volume> &volumes, const std::vector<Volume> &watched)
{
    for (const Volume &volume : volumes) {
        if (std::ranges::find(watched, volume) != watched.end())
            continue;
        // Of another folder that was there before.
        if (m_volumesWatcher.directories().contains(volume.path))
            m_volumesWatcher.removePath(volume.path);
        m_volumesWatcher.addPath(volume.path);
        m_changed.remove(volume.path);
    }
}

void FolderVolumes::rescan()
{
    watch();
    const std::vector<Volume> now = scan();
    const std::vector<Volume> before = std::exchange(m_known, now);
    watch(now, before);
    announceChanges(*this, before, now);
}

void FolderVolumes::announceAgain()
{
    const QSet<QString> changed = std::exchange(m_changed, {});
    for (const Volume &volume : scan()) {
        if (changed.contains(volume.path))
            Q_EMIT didMount(volume.path);
    }
}
