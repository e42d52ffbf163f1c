#include "app/Plans.h"

#include "app/Log.h"
#include "app/PlanRows.h"
#include "app/PrefsController.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/lists/UserDefaults.h"
#include "sync/ModuleSelection.h"
#include "util/Settings.h"

#include <algorithm>

Plans::Plans(const ModuleCatalogue &catalogue, CVSyncManager &manager)
    : m_catalogue(catalogue)
    , m_manager(manager)
    , m_preview(catalogue)
{
    connect(&m_preview, &SyncPreview::isReady, this, [this](bool ready) {
        // A stick may go without a word, and was empty then.
        Q_EMIT isReady(ready && m_manager.pspIsMounted() && isOfStick());
    });
}

void Plans::watchSettings(DistributedNotificationCenter &center)
{
    UserDefaults &store = UserDefaults::standard();
    connect(&store, &UserDefaults::changed, this, &Plans::checkBasis);
    // Observers are called in no order that is known: the store may not have been read anew yet.
    const auto reread = [this, &store] {
        store.synchronize();
        checkBasis();
    };
    center.observe(PrefsController::didChange(), this, reread,
                   DistributedNotificationCenter::Own::Ignore);
}

void Plans::request()
{
    const bool canPlan = m_manager.pspIsMounted() && !m_manager.isSyncing();
    m_volume = canPlan ? m_manager.pspVolume() : QString();
    m_basis = basis();
    m_preview.request(m_volume);
}

// Of what the helper keeps for itself nothing decides what a sync does.
QVariantList Plans::basis() const
{
    QVariantList values;
    for (const Settings::Key &key : Settings::keys()) {
        if (key.name != Settings::lastSyncSize.key() && key.name != Settings::lastFreeSpace.key())
            values.append(key.value());
    }
    for (const ModuleKind &kind : m_catalogue)
        values.append(ModuleSelection::read(kind.saveName, m_volume).value_or(QStringList()));
    return values;
}

void Plans::checkBasis()
{
    QVariantList now = basis();
    if (now == m_basis)
        return;
    m_basis = std::move(now);
    m_preview.invalidate();
}

bool Plans::isOfStick() const
{
    return m_preview.plan() && m_preview.plan()->volume == m_manager.pspVolume();
}

std::shared_ptr<const SyncPlan> Plans::plan() const
{
    return m_manager.isSyncing() ? m_manager.runPlan() : m_preview.plan();
}

QVariantMap Plans::summary() const
{
    const auto shown = plan();
    return shown ? PlanRows::summary(*shown) : QVariantMap();
}

QVariantList Plans::items(const QString &saveName, quint32 first, quint32 count) const
{
    if (!isKnown(saveName)) {
        qCWarning(lcApp).noquote() << "There is no kind of media named" << saveName;
        return {};
    }
    const auto shown = plan();
    return shown ? PlanRows::items(*shown, saveName, first, count) : QVariantList();
}

bool Plans::isKnown(const QString &saveName) const
{
    return saveName.isEmpty() ||
           std::ranges::find(m_catalogue, saveName, &ModuleKind::saveName) != m_catalogue.end();
}
