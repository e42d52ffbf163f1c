#include "util/Preferences.h"

#include "platform/lists/UserDefaults.h"
#include "util/StringTools.h"

namespace Preferences {

const std::vector<Key> &keys()
{
    static const std::vector<Key> table = {
        // Generation of the PSP's system software: below 1 it plays MP3 and shows JPEG only, and
        // knows neither bookmarks nor the contacts page.
        {QStringLiteral("firmwareVersion"), 1},
        {QStringLiteral("CaravelFolder"), QStringLiteral("~/Documents")},
        // Selections are read from the stick's own copy; such a stick is never synced on mount.
        {QStringLiteral("useSyncProfiles"), false},
        {QStringLiteral("startOnLogin"), true},
        {QStringLiteral("openOnMount"), false},
        {QStringLiteral("syncOnMount"), true},
        // On: clean-up removes every file in a module's folder that the run does not place. Off:
        // only
        // those that the module's last index lists.
        {QStringLiteral("ownOnly"), true},
        {QStringLiteral("unmountAfterSync"), false},
        {QStringLiteral("playSyncCompletionSound"), true},
        {QStringLiteral("regCheckForUpdates"), true},
        {QStringLiteral("warnAboutUnformattedMemorySticks"), true},
        {QStringLiteral("useDetailedLogging"), false},
        {QStringLiteral("syncContacts"), true},
        {QStringLiteral("syncMusic"), true},
        {QStringLiteral("syncPhotos"), true},
        {QStringLiteral("syncMovies"), true},
        {QStringLiteral("syncBookmarks"), true},
        {QStringLiteral("syncBackup"), true},
        {QStringLiteral("syncDropboxes"), true},
        {QStringLiteral("organizeMusicBy"), 2}, // 0 playlist, 1 artist, 2 album, 3 artist and album
        {QStringLiteral("sortMusicBy"), 2},     // 0 running number, 1 none, 2 disc and track number
        {QStringLiteral("sortPhotosBy"), 0},    // 1 running number, else the caption alone
        {QStringLiteral("movieConvertVideoResolution"), 0},
        {QStringLiteral("movieConvertVideoQuality"), 2},
        {QStringLiteral("movieConvertAudioQuality"), 2},
        {QStringLiteral("volumeBoost"), 100}, // per cent
        {QStringLiteral("deinterlace"), false},
        {QStringLiteral("useQuickTime"), true},
        {QStringLiteral("bookmarkSource"), 0}, // 0 Safari, 1 Firefox, 2 OmniWeb, 3 Camino
        {QStringLiteral("backupsToKeep"), 2},
        {QStringLiteral("lastSyncSize"), QVariant::fromValue<quint64>(0)},          // bytes
        {QStringLiteral("lastFreeSpace"), QVariant::fromValue<quint64>(490943283)}, // bytes
    };
    return table;
}

QVariantMap registeredDefaults()
{
    QVariantMap defaults;
    for (const Key &key : keys())
        defaults.insert(key.name, key.defaultValue);
    return defaults;
}

bool useDetailedLogging()
{
    return UserDefaults::standard().boolForKey(QStringLiteral("useDetailedLogging"));
}

QString documentsFolder()
{
    const QString parent = UserDefaults::standard().stringForKey(QStringLiteral("CaravelFolder"));
    return StringTools::appendingPathComponent(
        StringTools::standardizingPath(StringTools::expandingTilde(parent)),
        QStringLiteral("Caravel"));
}

QString supportFolder()
{
    return StringTools::expandingTilde(QStringLiteral("~/Library/Application Support/Caravel"));
}

QString dropboxFolder(const QString &name)
{
    return documentsFolder() + QStringLiteral("/Dropboxes/") + name;
}

} // namespace Preferences
