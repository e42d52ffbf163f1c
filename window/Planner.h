#pragma once

#include "frontend/HelperConnection.h"

#include <QTimer>
#include <QVariantMap>

class StickWatch;

/// What a sync would do now with the stick, as the helper plans it: asked for half a second after
/// the last change of what it goes by. Main thread.
class Planner : public QObject
{
    Q_OBJECT
public:
    /// Both outlive it.
    Planner(HelperConnection &helper, const StickWatch &watch, QObject *parent = nullptr);

    /// Something that the plan goes by has changed.
    void planSoon();
    void planNow();

    /// As Protocol::planSummary; empty where there is no plan.
    const QVariantMap &summary() const { return m_summary; }
    /// The last one that was there for this stick, which may be of before the last change.
    const QVariantMap &latest() const { return m_latest; }
    bool isPlanning() const { return m_isPlanning; }

    using Rows = std::function<void(const QVariantList &)>;
    /// Asks for the plan's rows of the kind of that save name, in pages, and hands each on, as long
    /// as `context` lives and the plan stays.
    void readItems(const QString &kind, QObject *context, const Rows &take);

Q_SIGNALS:
    /// There is another plan, or none any more, or one is on its way.
    void changed();

private:
    void planIsReady(bool ready);
    void adopt(const QVariantMap &summary);
    void readPage(const QString &kind, QObject *context, const Rows &take, uint first, int plan);

    HelperConnection &m_helper;
    const StickWatch &m_watch;
    QVariantMap m_summary;
    QVariantMap m_latest;
    QTimer m_soon; // single shot
    bool m_isPlanning = false;
    int m_plan = 0; // counts them
};
