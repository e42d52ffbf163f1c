#include "platform/volumes/own/GioVolumes.h"

#include "platform/core/Log.h"
#include "platform/core/MainThread.h"
#include "platform/core/own/Glib.h"
#include "platform/volumes/own/VolumeChanges.h"

#include <gio/gio.h>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

using Glib::Ref;

namespace {

struct Mounted
{
    QString path;
    Ref<GMount> mount; // two mounts at one path, one after the other, are two objects

    bool operator==(const Mounted &) const = default;
};

/// Empty where the mount has no local path, or one that is no UTF-8.
QString localPath(GMount *mount)
{
    const auto root = Ref(g_mount_get_root(mount));
    char *const bytes = g_file_get_path(root.get());
    const QByteArray path(bytes);
    g_free(bytes);
    return path.isValidUtf8() ? QString::fromUtf8(path) : QString();
}

std::vector<Mounted> mountsOf(GVolumeMonitor *monitor)
{
    std::vector<Mounted> mounts;
    GList *const list = g_volume_monitor_get_mounts(monitor);
    for (GList *entry = list; entry; entry = entry->next) {
        const auto mount = Ref(static_cast<GMount *>(entry->data));
        const QString path = localPath(mount.get());
        if (!path.isEmpty() && !g_mount_is_shadowed(mount.get()))
            mounts.push_back({path, mount});
    }
    g_list_free(list);
    return mounts;
}

/// One unmount or eject and what came of it.
struct Attempt
{
    bool eject = false;
    bool hasEnded = false;
    Ejection ejection;

    static void finished(GObject *object, GAsyncResult *result, gpointer data)
    {
        auto *self = static_cast<Attempt *>(data);
        auto *mount = reinterpret_cast<GMount *>(object);
        GError *error = nullptr;
        self->ejection.isDone =
            (self->eject ? g_mount_eject_with_operation_finish(mount, result, &error)
                         : g_mount_unmount_with_operation_finish(mount, result, &error)) != FALSE;
        if (error)
            self->ejection.reason = QString::fromUtf8(error->message).trimmed();
        g_clear_error(&error);
        self->hasEnded = true;
    }
};

/// No mount operation is passed: nobody could answer its questions, so a busy volume is refused.
Ejection ejectAndWait(GMount *mount)
{
    Attempt attempt;
    Glib::ThreadContext context; // no other event loop is served meanwhile
    attempt.eject = g_mount_can_eject(mount) != FALSE;
    if (attempt.eject)
        g_mount_eject_with_operation(mount, G_MOUNT_UNMOUNT_NONE, nullptr, nullptr,
                                     Attempt::finished, &attempt);
    else
        g_mount_unmount_with_operation(mount, G_MOUNT_UNMOUNT_NONE, nullptr, nullptr,
                                       Attempt::finished, &attempt);
    context.serveUntil(attempt.hasEnded);
    return attempt.ejection;
}

} // namespace

class GioVolumes::Private
{
public:
    explicit Private(GioVolumes *owner)
        : m_owner(owner)
        , m_monitor(g_volume_monitor_get())
        , m_mounts(mountsOf(m_monitor.get()))
    {
        for (const char *signal : {"mount-added", "mount-changed", "mount-removed"})
            g_signal_connect(m_monitor.get(), signal, G_CALLBACK(mountsChanged), this);
        g_signal_connect(m_monitor.get(), "mount-pre-unmount", G_CALLBACK(mountPreUnmount), this);
    }

    ~Private() { g_signal_handlers_disconnect_by_data(m_monitor.get(), this); }

    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    std::vector<Mounted> mounts() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_mounts;
    }

    void rescan()
    {
        const std::vector<Mounted> now = mountsOf(m_monitor.get());
        announceChanges(*m_owner, exchangeMounts(now), now);
    }

    void queueRescan()
    {
        performOnMainThread(
            m_owner, [this] { rescan(); }, CallMode::DontWait);
    }

private:
    std::vector<Mounted> exchangeMounts(const std::vector<Mounted> &now)
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_mounts, now);
    }

    static void mountsChanged(GVolumeMonitor *, GMount *, gpointer data)
    {
        auto *self = static_cast<Private *>(data);
        if (isMainThread())
            self->rescan();
        else
            self->queueRescan();
    }

    /// Comes on the thread that unmounts when that is one of our own.
    static void mountPreUnmount(GVolumeMonitor *, GMount *mount, gpointer data)
    {
        const QString path = localPath(mount);
        GioVolumes *const owner = static_cast<Private *>(data)->m_owner;
        if (!path.isEmpty())
            performOnMainThread(
                owner, [owner, &path] { Q_EMIT owner->willUnmount(path); }, CallMode::Wait);
    }

    GioVolumes *const m_owner;
    const Ref<GVolumeMonitor> m_monitor; // main thread

    mutable std::mutex m_mutex; // guards what follows; held for a copy only
    std::vector<Mounted> m_mounts;
};

GioVolumes::GioVolumes(QObject *parent)
    : Volumes(parent)
    , d(std::make_unique<Private>(this))
{
}

GioVolumes::~GioVolumes() = default;

QStringList GioVolumes::mountedRemovableMedia() const
{
    QStringList paths;
    for (const Mounted &mount : d->mounts())
        paths.append(mount.path);
    return paths;
}

Ejection GioVolumes::unmountAndEject(const QString &path)
{
    const std::vector<Mounted> mounts = d->mounts();
    const auto found = std::ranges::find(mounts, path, &Mounted::path);
    if (found == mounts.end()) {
        qCWarning(lcPlatform, "Can't eject %s: no such volume", qUtf8Printable(path));
        return {.reason = QStringLiteral("no such volume")};
    }
    const Ejection ejection = ejectAndWait(found->mount.get());
    if (!ejection.isDone)
        qCWarning(lcPlatform, "Can't eject %s: %s", qUtf8Printable(path),
                  qUtf8Printable(ejection.reason));
    d->queueRescan();
    return ejection;
}
