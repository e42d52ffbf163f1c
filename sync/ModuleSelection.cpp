#include "sync/ModuleSelection.h"

#include "platform/files/FileManager.h"
#include "platform/lists/PropertyList.h"
#include "sync/Log.h"
#include "sync/StickEditor.h"
#include "sync/StickFiles.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

namespace ModuleSelection {

namespace {

bool hasProfiles(const QString &volume)
{
    return !volume.isEmpty() && files().linkStatus(StickFiles::caravelFolder(volume)).isFolder();
}

QString profileOf(const QString &moduleSaveName, const QString &volume)
{
    return StickFiles::selectionProfile(volume, Settings::selectionName(moduleSaveName));
}

void storeProfile(const QStringList &identifiers, const QString &profile, const QString &volume)
{
    const auto written = StickEditor(volume).write(profile, PropertyList::toXml(identifiers));
    if (!written)
        qCWarning(lcSync).noquote()
            << "Can't store the selection in" << profile << ":" << written.error().text;
}

bool replaceIn(QStringList &selection, const QString &before, const QString &after)
{
    const qsizetype index = selection.indexOf(before);
    if (index >= 0)
        selection.replace(index, after);
    return index >= 0;
}

} // namespace

std::optional<QStringList> read(const QString &moduleSaveName, const QString &volume)
{
    if (Settings::useSyncProfiles() && hasProfiles(volume)) {
        // A profile that can't be read must not count as "nothing selected": that would clear the
        // stick.
        if (auto profile = PropertyList::readStringArray(profileOf(moduleSaveName, volume)))
            return *profile;
    }
    return Settings::selection(moduleSaveName);
}

bool hasUnreadableProfile(const QString &moduleSaveName, const QString &volume)
{
    const QString profile = StickFiles::selectionProfile(volume, moduleSaveName);
    return Settings::useSyncProfiles() && hasProfiles(volume) && files().exists(profile) &&
           !PropertyList::readStringArray(profile);
}

void store(const QStringList &identifiers, const QString &moduleSaveName, const QString &volume)
{
    if (hasProfiles(volume))
        storeProfile(identifiers, profileOf(moduleSaveName, volume), volume);
    Settings::setSelection(moduleSaveName, identifiers);
}

bool isIdentifier(const QString &text)
{
    return PathComponents::count(text) > 0;
}

void rename(const QString &identifier, const QString &newIdentifier, const QString &moduleSaveName,
            const QString &volume)
{
    if (hasProfiles(volume)) {
        const QString profile = profileOf(moduleSaveName, volume);
        auto selection = PropertyList::readStringArray(profile);
        if (selection && replaceIn(*selection, identifier, newIdentifier))
            storeProfile(*selection, profile, volume);
    }
    auto selection = Settings::selection(moduleSaveName);
    if (selection && replaceIn(*selection, identifier, newIdentifier))
        Settings::setSelection(moduleSaveName, *selection);
}

} // namespace ModuleSelection
