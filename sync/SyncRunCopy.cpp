// Item by item, kind by kind.

#include "sync/StickFiles.h"
#include "sync/SyncRun.h"

void SyncRun::copy()
{
    m_host.setIsIndeterminate(false);
    m_host.tell([](CVSyncManagerDelegate &delegate) { delegate.syncDidStart(); });
    for (size_t i = 0; i < m_plan->kinds.size() && !m_host.shouldCancelSync(); ++i) {
        const KindPlan &kind = m_plan->kinds[i];
        m_host.tell([&kind](CVSyncManagerDelegate &delegate) {
            delegate.syncWillProcessModule(kind.moduleName);
        });
        ItemPlacer *const placer = m_modules[i]->placer();
        copyKind(kind, placer ? *placer : m_stick);
    }
}

void SyncRun::copyKind(const KindPlan &kind, ItemPlacer &placer)
{
    QStringList &index = m_indexes[kind.saveName];
    for (const PlannedItem &planned : kind.items) {
        if (planned.action == PlannedItem::Action::LeaveOut)
            leaveOut(planned);
        if (!planned.isCopied())
            continue;
        std::ignore = m_stick.isPresent(); // a stick that is gone cancels the run
        if (m_host.syncModuleShouldCancel())
            return;
        if (files().exists(planned.item.source))
            copyItem(planned, placer, index);
    }
}

void SyncRun::copyItem(const PlannedItem &planned, ItemPlacer &placer, QStringList &index)
{
    m_host.syncModuleWillProcessItem(planned.item);
    if (m_stick.isPresent()) {
        const CopyOutcome outcome = placer.place(planned.item, *this);
        m_report.copiedBytes += outcome.bytes;
        if (outcome.isComplete())
            ++(planned.action == PlannedItem::Action::Replace ? m_report.replaced
                                                              : m_report.copied);
        else
            leaveOut(planned);
        index.append(StickFiles::relativeToVolume(planned.item.destination, m_stick.volume()));
    }
    m_host.syncModuleDidProcessItem(planned.item);
}

void SyncRun::leaveOut(const PlannedItem &planned)
{
    m_report.leftOut.push_back({planned.item.destination, planned.item.source, planned.reason});
}
