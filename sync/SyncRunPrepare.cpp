// Everything is looked at and planned; then what will be replaced goes, so that the clean-up and
// the test of the free space count without it.

#include "sync/Log.h"
#include "sync/SyncPlanner.h"
#include "sync/SyncRun.h"
#include "util/Settings.h"

namespace {

void logDecision(const PlannedItem &planned)
{
    using Action = PlannedItem::Action;
    if (planned.reason == PlannedItem::Reason::Missing)
        qCInfo(lcSync).noquote() << "Dequeueing" << planned.item.source << "(file does not exist)";
    else if (planned.action == Action::InPlace)
        qCInfo(lcSync).noquote() << "Dequeueing" << planned.item.source << "(file already synced)";
    else if (planned.action == Action::Replace)
        qCInfo(lcSync).noquote() << "Replacing" << planned.item.destination << "(file changed)";
}

} // namespace

void SyncRun::prepare()
{
    makePlan();
    for (const KindPlan &kind : m_plan->kinds) {
        for (const FileError &error : kind.errors)
            m_host.syncModuleError(error);
        m_indexes.insert(kind.saveName, kind.inPlace(m_stick.volume()));
        removeReplaced(kind);
    }
    m_host.setSyncBytes(m_plan->syncBytesTotal(), 0);
    m_host.setSyncBytesEstimate(m_plan->syncBytesEstimate());
}

void SyncRun::makePlan()
{
    m_host.setSyncBytes(0, 0);
    m_modules = modulesTakingPart(m_services.catalogue, m_stick.volume());
    // A cancel is looked for when the plan stands: every module has its index written at the end.
    m_plan = std::make_shared<const SyncPlan>(
        SyncPlanner(m_stick.volume(), [] { return false; }).plan(m_modules));
    m_host.setPlan(m_plan);
}

void SyncRun::removeReplaced(const KindPlan &kind)
{
    const bool logsInDetail = Settings::useDetailedLogging();
    for (const PlannedItem &planned : kind.items) {
        if (logsInDetail)
            logDecision(planned);
        if (planned.action == PlannedItem::Action::Replace &&
            !m_stick.remove(planned.item.destination, this))
            m_notRemoved.append(planned.item.destination);
    }
}
