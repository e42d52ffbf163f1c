#pragma once

#include "sync/ModuleKind.h"
#include "sync/SyncPlan.h"

#include <QObject>

#include <atomic>
#include <memory>

/// What a sync would do now with the mounted stick, worked out on request and kept until it may not
/// be true any more. Main thread; the planning has a thread of its own.
class SyncPreview : public QObject
{
    Q_OBJECT
public:
    /// Not owned, outliving the preview and every worker.
    explicit SyncPreview(const ModuleCatalogue &catalogue, QObject *parent = nullptr);
    ~SyncPreview() override;

    /// Has the plan made for the stick at that volume; empty: there is none, which isReady(false)
    /// tells. Asked for while one is being made, that one answers both.
    void request(const QString &volume);

    /// What the plan was made of has changed: one that is being made is begun anew, one that stands
    /// is dropped, and told by isReady(false).
    void invalidate();

    /// Drops the plan, and one that is being made: the stick has gone, or a run has begun. Told
    /// only to who still waits.
    void forget();

    /// Null where there is none.
    const std::shared_ptr<const SyncPlan> &plan() const { return m_plan; }

Q_SIGNALS:
    /// Whether plan() now is one.
    void isReady(bool ready);

private:
    void start();
    void finish(std::shared_ptr<const SyncPlan> plan);

    const ModuleCatalogue &m_catalogue;
    QString m_volume;
    std::shared_ptr<std::atomic<bool>> m_stop; // of the planning that is under way; null: none is
    std::shared_ptr<const SyncPlan> m_plan;
};
