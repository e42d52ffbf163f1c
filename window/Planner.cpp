#include "window/Planner.h"

#include "window/StickWatch.h"

using namespace std::chrono_literals;

Planner::Planner(HelperConnection &helper, const StickWatch &watch, QObject *parent)
    : QObject(parent)
    , m_helper(helper)
    , m_watch(watch)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(500ms);
    connect(&m_soon, &QTimer::timeout, this, &Planner::planNow);
    connect(&helper.frontEnd(), &FrontEndObject::planIsReady, this, &Planner::planIsReady);
    connect(&helper.frontEnd(), &FrontEndObject::syncDidFinish, this, &Planner::planSoon);
    connect(&watch, &StickWatch::stickChanged, this, [this] {
        m_latest.clear();
        adopt({});
        planSoon();
    });
}

void Planner::planSoon()
{
    m_soon.start();
}

void Planner::planNow()
{
    m_soon.stop();
    if (!m_watch.state().mounted || m_watch.state().syncing)
        return;
    m_isPlanning = true;
    ++m_plan;
    m_helper.tell(Protocol::requestPlan);
    Q_EMIT changed();
}

void Planner::planIsReady(bool ready)
{
    if (ready) {
        m_helper.ask(Protocol::planSummary, {}, this,
                     [this](const QVariant &value) { adopt(value.toMap()); });
        return;
    }
    // One that is given up because its settings changed is followed by another; one that failed
    // would fail again.
    const bool wasThere = !m_summary.isEmpty();
    adopt({});
    if (wasThere)
        planSoon();
}

void Planner::adopt(const QVariantMap &summary)
{
    m_isPlanning = false;
    m_summary = summary;
    if (!summary.isEmpty())
        m_latest = summary;
    ++m_plan;
    Q_EMIT changed();
}

void Planner::readItems(const QString &kind, QObject *context, const Rows &take)
{
    readPage(kind, context, take, 0, m_plan);
}

void Planner::readPage(const QString &kind, QObject *context, const Rows &take, uint first,
                       int plan)
{
    constexpr uint rowsAtOnce = 1000;
    m_helper.ask(Protocol::planItems, {kind, first, rowsAtOnce}, context,
                 [this, kind, context, take, first, plan](const QVariant &value) {
                     const QVariantList rows = value.toList();
                     if (plan != m_plan || rows.isEmpty())
                         return;
                     take(rows);
                     readPage(kind, context, take, first + static_cast<uint>(rows.size()), plan);
                 });
}
