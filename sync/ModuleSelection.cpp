#include "sync/ModuleSelection.h"

#include "platform/FileManager.h"
#include "platform/PropertyList.h"
#include "platform/UserDefaults.h"
#include "sync/Log.h"
#include "sync/StickFiles.h"

namespace ModuleSelection {

namespace {

QString preferenceKey(const QString &moduleSaveName)
{
    return QStringLiteral("enabled") + moduleSaveName;
}

} // namespace

std::optional<QStringList> read(const QString &moduleSaveName, const QString &volume)
{
    const UserDefaults &defaults = UserDefaults::standard();
    if (!volume.isEmpty() && defaults.boolForKey(QStringLiteral("useSyncProfiles"))) {
        // A profile that can't be read must not count as "nothing selected": that would clear the
        // stick.
        if (auto profile =
                PropertyList::readStringArray(StickFiles::selectionProfile(volume, moduleSaveName)))
            return profile;
    }
    return defaults.stringArrayForKey(preferenceKey(moduleSaveName));
}

void store(const QStringList &identifiers, const QString &moduleSaveName, const QString &volume)
{
    if (!volume.isEmpty() &&
        FileManager::defaultManager().status(StickFiles::caravelFolder(volume)).isFolder()) {
        const QString profile = StickFiles::selectionProfile(volume, moduleSaveName);
        QString reason;
        if (!PropertyList::writeAtomically(identifiers, profile, &reason))
            qCWarning(lcSync).noquote()
                << "Can't store the selection in" << profile << ":" << reason;
    }
    UserDefaults::standard().setObject(preferenceKey(moduleSaveName), identifiers);
}

} // namespace ModuleSelection
