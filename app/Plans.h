#pragma once

#include "sync/CVSyncManager.h"
#include "sync/SyncPreview.h"

#include <QVariantList>
#include <QVariantMap>

class DistributedNotificationCenter;

/// The plan that front-ends ask for: has it made, watches what it was made of, and answers from it;
/// during a run from the run's own. Main thread.
class Plans : public QObject
{
    Q_OBJECT
public:
    /// Not owned, outliving it.
    Plans(const ModuleCatalogue &catalogue, CVSyncManager &manager);

    /// Begins to watch the settings; the store must be there.
    void watchSettings(DistributedNotificationCenter &center);

    void request();
    /// The plan is none any more: the stick has gone or a run begins.
    void forget() { m_preview.forget(); }

    QVariantMap summary() const;
    /// As Protocol::planItems; an unknown kind is logged.
    QVariantList items(const QString &saveName, quint32 first, quint32 count) const;

Q_SIGNALS:
    void isReady(bool ready);

private:
    QVariantList basis() const;
    void checkBasis();
    bool isOfStick() const;
    std::shared_ptr<const SyncPlan> plan() const;
    bool isKnown(const QString &saveName) const;

    const ModuleCatalogue &m_catalogue;
    CVSyncManager &m_manager;
    SyncPreview m_preview;
    QString m_volume;     // that the plan is for
    QVariantList m_basis; // the settings and selections that it is made of
};
