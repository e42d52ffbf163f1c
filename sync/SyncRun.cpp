#include "sync/SyncRun.h"

#include "sync/CVSyncManager.h"
#include "sync/Log.h"

#include <QDir>

#include <utility>

SyncRun::SyncRun(CVSyncManager &manager, QString volume)
    : m_manager(manager)
    , m_volume(std::move(volume))
    , m_identity(VolumeIdentity::of(m_volume))
{
}

SyncRun::~SyncRun() = default;

bool SyncRun::pspVolumeIsPresent()
{
    if (m_identity && VolumeIdentity::of(m_volume) == m_identity)
        return true;
    if (!std::exchange(m_saidGone, true)) {
        qCWarning(lcSync).noquote()
            << "The stick at" << m_volume << "is gone; the sync ends and nothing is written there";
    }
    m_manager.cancelSync();
    return false;
}

bool SyncRun::syncModuleShouldCancel()
{
    pspVolumeIsPresent();
    return m_manager.shouldCancelSync();
}

void SyncRun::syncModuleWillProcessItem(const CVSyncItem &item)
{
    m_manager.tell(
        [&item](CVSyncManagerDelegate &delegate) { delegate.syncWillProcessItem(item); });
}

void SyncRun::syncModuleDidCopyBytes(quint64 count)
{
    m_manager.addCopiedBytes(count);
}

void SyncRun::syncModuleDidProcessItem(const CVSyncItem &item)
{
    m_manager.tell([&item](CVSyncManagerDelegate &delegate) { delegate.syncDidProcessItem(item); });
}

void SyncRun::syncModuleError(const FileError &error)
{
    m_manager.tell(
        [&error](CVSyncManagerDelegate &delegate) { delegate.syncError(errorInfo(error)); });
}

void SyncRun::learnHowNamesCompare()
{
    const QString otherCase = QStringLiteral(".CARAVEL");
    const QDir root(m_volume);
    m_tellsCaseApart = !root.exists(otherCase) ||
                       root.entryList(QDir::AllEntries | QDir::Hidden).contains(otherCase);
}
