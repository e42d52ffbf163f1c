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
        m_host.reportProgress(m_report);
    }
    for (const FileError &error : files().finishClosing()) {
        fileManagerShouldProceedAfterError(error);
        m_report.leftOut.push_back({error.path, {}, PlannedItem::Reason::None, error.text});
    }
}

void SyncRun::copyKind(const KindPlan &kind, ItemPlacer &placer)
{
    QStringList &index = m_indexes[kind.saveName];
    for (const PlannedItem &planned : kind.items) {
        if (planned.action == PlannedItem::Action::LeaveOut)
            leaveOut(planned.item, planned.reason);
        if (!planned.isCopied())
            continue;
        std::ignore = m_stick.isPresent(); // a stick that is gone cancels the run
        if (m_host.syncModuleShouldCancel())
            return;
        if (m_notKept.contains(planned.item.destination))
            continue; // left out already
        if (files().exists(planned.item.source))
            copyItem(planned, placer, index);
        else
            leaveOut(planned.item, PlannedItem::Reason::Missing);
    }
}

void SyncRun::copyItem(const PlannedItem &planned, ItemPlacer &placer, QStringList &index)
{
    m_host.syncModuleWillProcessItem(planned.item);
    if (m_stick.isPresent()) {
        m_lastError = {};
        const CopyOutcome outcome = placer.place(planned.item, *this);
        record(planned, outcome);
        if (outcome.ended != CopyOutcome::Ended::Refused || !isInTheWay(planned.item.destination))
            index.append(StickFiles::relativeToVolume(planned.item.destination, m_stick.volume()));
    }
    m_host.syncModuleDidProcessItem(planned.item);
    reportNowAndThen();
}

/// What was there before this run is no more ours for having been wanted.
bool SyncRun::isInTheWay(const QString &destination) const
{
    return m_inTheWay.contains(destination) && files().linkStatus(destination).exists();
}

void SyncRun::record(const PlannedItem &planned, const CopyOutcome &outcome)
{
    m_report.copiedBytes += outcome.bytes;
    if (outcome.isComplete())
        ++(planned.action == PlannedItem::Action::Replace ? m_report.replaced : m_report.copied);
    else if (!files().exists(planned.item.source))
        leaveOut(planned.item, PlannedItem::Reason::Missing);
    else if (!m_host.shouldCancelSync())
        leaveOut(planned.item, PlannedItem::Reason::None);
}

void SyncRun::leaveOut(const CVSyncItem &item, PlannedItem::Reason reason)
{
    using Reason = PlannedItem::Reason;
    QString text;
    switch (reason) {
    case Reason::Missing:
        text = QStringLiteral("missing");
        break;
    case Reason::Link:
        text = QStringLiteral("a link lies on the way");
        break;
    case Reason::TooLarge:
        text = QStringLiteral("larger than the stick takes files");
        break;
    case Reason::NotKept:
        text = QStringLiteral("no copy of what lies there could be kept: ") + m_lastError.text;
        break;
    default:
        // Nothing is overwritten; what was to go first may have stayed.
        text = m_lastError.text.isEmpty() ? QStringLiteral("something else lies there")
                                          : m_lastError.text;
    }
    m_report.leftOut.push_back({item.destination, item.source, reason, text});
}
