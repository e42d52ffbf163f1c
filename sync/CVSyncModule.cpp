#include "sync/CVSyncModule.h"

#include "sync/ModuleSelection.h"
#include "util/QMMD5Hasher.h"
#include "util/Settings.h"

#include <utility>

namespace {

QSet<QString> selectionFor(const QString &saveName, const QString &volume)
{
    const QStringList identifiers = ModuleSelection::read(saveName, volume).value_or(QStringList());
    return {identifiers.begin(), identifiers.end()};
}

} // namespace

CVSyncModule::CVSyncModule(QString volume, const QString &saveName)
    : m_volume(std::move(volume))
    , m_saveName(saveName)
    , m_selected(selectionFor(saveName, m_volume))
{
}

CVSyncModule::~CVSyncModule() = default;

QString CVSyncModule::rootSyncFolder() const
{
    return m_volume;
}

bool CVSyncModule::shouldClearUnsyncedFiles() const
{
    return false;
}

std::vector<FolderToCleanUp> CVSyncModule::foldersToCleanUp() const
{
    return {{rootSyncFolder(), !Settings::ownOnly()}};
}

QVariantMap CVSyncModule::basis() const
{
    QStringList selection = m_selected.values();
    selection.sort();
    QStringList settings = ownSettings();
    settings << QString::number(Settings::takesPart(m_saveName))
             << QString::number(Settings::syncDropboxes())
             << QString::number(Settings::firmwareVersion());
    return {{QStringLiteral("selection"), QVariantList(selection.begin(), selection.end())},
            {QStringLiteral("source"), source()},
            {QStringLiteral("settings"), QMMD5Hasher::hashFromString(settings.join(u'\n'))}};
}

std::vector<CVSyncItem> CVSyncModule::itemsToSync()
{
    return {};
}

void CVSyncModule::noteUnreadableLibrary(const FileError &error)
{
    if (!error.isMissing())
        m_unreadableLibrary = error;
}

ItemPlacer *CVSyncModule::placer()
{
    return nullptr;
}
