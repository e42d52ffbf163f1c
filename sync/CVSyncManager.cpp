#include "sync/CVSyncManager.h"

#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/lists/NumberArchive.h"
#include "sync/StickFiles.h"
#include "util/Settings.h"

#include <utility>

CVSyncManager::CVSyncManager(SyncServices services, ModuleCatalogue catalogue, QObject *parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_catalogue(std::move(catalogue))
    , m_forItself(m_catalogue)
{
    connect(&m_forItself, &SyncPreview::isReady, this, [this](bool ready) {
        if (ready)
            startPlanned();
    });
    connect(&m_services.volumes, &Volumes::didMount, this, &CVSyncManager::volumeDidMount);
    connect(&m_services.volumes, &Volumes::willUnmount, this, &CVSyncManager::volumeWillUnmount);
    connect(&m_services.volumes, &Volumes::didUnmount, this, &CVSyncManager::detectPSP);
    // How a process that has no connection to this one stops a sync.
    m_services.notifications.observe(QStringLiteral("CVCancelSyncNotification"), this,
                                     [this] { cancelSync(); });
}

CVSyncManager::~CVSyncManager() = default;

QString CVSyncManager::pspVolume() const
{
    const std::scoped_lock lock(m_volumeMutex);
    return m_pspVolume;
}

void CVSyncManager::setPSPVolume(const QString &volume)
{
    const auto identity = VolumeIdentity::of(volume);
    const bool isAnother = volume != pspVolume() || !isStillThere();
    if (isAnother)
        m_forItself.forget();
    const std::scoped_lock lock(m_volumeMutex);
    m_pspVolume = volume;
    m_identity = identity;
}

QString CVSyncManager::pspName() const
{
    return FileManager::defaultManager().displayName(pspVolume());
}

// --- Detection

void CVSyncManager::detectPSP()
{
    // A run may find its stick gone while the main thread hears of the same: one scan at a time.
    if (!isMainThread()) {
        performOnMainThread(
            this, [this] { detectPSP(); }, CallMode::Wait);
        return;
    }
    bool foundUnformatted = false;
    for (const QString &volume : m_services.volumes.mountedRemovableMedia()) {
        const FileManager &files = FileManager::defaultManager();
        if (!files.exists(volume + QStringLiteral("/MEMSTICK.IND")))
            continue;
        if (takeAsPSP(volume))
            return;
        foundUnformatted = true;
    }
    setPSPIsMounted(false);
    if (foundUnformatted)
        tell([](CVSyncManagerDelegate &delegate) { delegate.foundUnformattedMemoryStick(); });
}

bool CVSyncManager::takeAsPSP(const QString &volume)
{
    if (!FileManager::defaultManager().exists(volume + QStringLiteral("/PSP")))
        return false;
    setPSPVolume(volume);
    setPSPIsMounted(true);
    Settings::lastFreeSpace.set(pspFreeSpace());
    readLastSyncSize(volume);
    return true;
}

void CVSyncManager::readLastSyncSize(const QString &volume)
{
    if (!files().linkStatus(StickFiles::caravelFolder(volume)).isFolder())
        return;
    const FileResult<quint64> size = NumberArchive::read(StickFiles::lastSyncSize(volume));
    Settings::lastSyncSize.set(size ? std::optional(*size) : std::nullopt);
}

void CVSyncManager::setPSPIsMounted(bool mounted)
{
    if (m_pspIsMounted.exchange(mounted) == mounted)
        return;
    if (!mounted) {
        m_forItself.forget();
        tell([](CVSyncManagerDelegate &delegate) { delegate.pspDidUnmount(); });
        return;
    }
    tell([volume = pspVolume()](CVSyncManagerDelegate &delegate) { delegate.pspDidMount(volume); });
    if (Settings::syncOnMount() && pspIsMounted() && !isFirstSync() &&
        m_delegate->shouldSyncOnMount())
        syncByItself();
}

bool CVSyncManager::pspIsMounted()
{
    if (m_pspIsMounted && !isStillThere())
        detectPSP();
    return m_pspIsMounted;
}

// What an unplugged stick leaves behind is often an empty folder at the same path.
bool CVSyncManager::isStillThere() const
{
    const auto found = VolumeIdentity::of(pspVolume());
    const std::scoped_lock lock(m_volumeMutex);
    return found && found == m_identity;
}

bool CVSyncManager::isFirstSync()
{
    return pspIsMounted() && !files().linkStatus(StickFiles::caravelFolder(pspVolume())).exists();
}

void CVSyncManager::volumeDidMount()
{
    if (!pspIsMounted())
        detectPSP();
}

void CVSyncManager::volumeWillUnmount(const QString &path)
{
    if (m_pspIsUnmounting)
        return;
    bool isOurs = false;
    {
        const std::scoped_lock lock(m_volumeMutex);
        isOurs = path == m_pspVolume || path == m_runVolume;
    }
    if (!isOurs)
        return;
    m_forItself.forget();
    cancelSync();
}

// --- Space

std::optional<quint64> CVSyncManager::pspSpace() const
{
    const auto space = FileManager::defaultManager().volumeSpace(pspVolume());
    return space ? std::optional(space->size) : std::nullopt;
}

std::optional<quint64> CVSyncManager::pspFreeSpace() const
{
    const auto space = FileManager::defaultManager().volumeSpace(pspVolume());
    return space ? std::optional(space->free) : std::nullopt;
}

std::optional<quint64> CVSyncManager::pspUsedSpace() const
{
    const auto space = FileManager::defaultManager().volumeSpace(pspVolume());
    return space ? std::optional(space->size - space->free) : std::nullopt;
}
