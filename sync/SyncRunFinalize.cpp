// Cancelled or not, each kind's index says what of it lies on the stick.

#include "platform/lists/PropertyList.h"
#include "sync/Log.h"
#include "sync/StickFiles.h"
#include "sync/SyncRun.h"

void SyncRun::finalize()
{
    m_host.setIsIndeterminate(true);
    m_host.tell([](CVSyncManagerDelegate &delegate) { delegate.finalizeDidStart(); });
    for (const KindPlan &kind : m_plan->kinds)
        writeIndex(kind);
    m_host.setIsIndeterminate(false);
}

void SyncRun::writeIndex(const KindPlan &kind)
{
    if (!m_stick.isPresent())
        return;
    const QString path = StickFiles::syncIndex(m_stick.volume(), kind.saveName);
    const QByteArray index = PropertyList::toXml(m_indexes.value(kind.saveName));
    if (const auto written = m_stick.write(path, index); !written)
        qCWarning(lcSync).noquote()
            << "Can't write the index" << path << ":" << written.error().text;
}
