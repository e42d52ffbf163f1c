#include "sync/SyncPreview.h"

#include "platform/core/MainThread.h"
#include "sync/SyncPlanner.h"

#include <utility>

namespace {

std::shared_ptr<const SyncPlan> planFor(const ModuleCatalogue &catalogue, const QString &volume,
                                        const std::atomic<bool> &stop)
{
    return std::make_shared<const SyncPlan>(SyncPlanner(volume, [&stop] {
                                                return stop.load();
                                            }).plan(modulesTakingPart(catalogue, volume)));
}

} // namespace

SyncPreview::SyncPreview(const ModuleCatalogue &catalogue, QObject *parent)
    : QObject(parent)
    , m_catalogue(catalogue)
{
}

SyncPreview::~SyncPreview()
{
    if (m_stop)
        *m_stop = true;
}

void SyncPreview::request(const QString &volume)
{
    if (m_stop && m_volume == volume)
        return;
    m_volume = volume;
    m_plan.reset();
    start();
}

void SyncPreview::invalidate()
{
    if (m_stop)
        start();
    else if (std::exchange(m_plan, nullptr))
        Q_EMIT isReady(false);
}

void SyncPreview::forget()
{
    m_plan.reset();
    if (const auto stop = std::exchange(m_stop, nullptr)) {
        *stop = true;
        Q_EMIT isReady(false);
    }
}

void SyncPreview::start()
{
    if (m_stop)
        *m_stop = true;
    m_stop = std::make_shared<std::atomic<bool>>(false);
    const auto work = [this, stop = m_stop, volume = m_volume] {
        auto plan = planFor(m_catalogue, volume, *stop);
        performOnMainThread(
            this,
            [this, stop, plan = std::move(plan)] {
                if (!*stop)
                    finish(plan);
            },
            CallMode::DontWait);
    };
    if (m_volume.isEmpty() || !Workers::start(work, Workers::AtQuit::Leave))
        finish(nullptr);
}

void SyncPreview::finish(std::shared_ptr<const SyncPlan> plan)
{
    m_stop.reset();
    m_plan = std::move(plan);
    Q_EMIT isReady(m_plan != nullptr);
}
