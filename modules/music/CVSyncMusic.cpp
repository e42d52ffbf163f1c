#include "modules/music/CVSyncMusic.h"

#include "modules/music/own/MusicNaming.h"
#include "modules/music/own/MusicSources.h"
#include "platform/core/Localized.h"
#include "sync/Log.h"
#include "sync/ModuleSelection.h"
#include "util/FileManagerTools.h"
#include "util/FileUrl.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <utility>

namespace {

QString dropbox()
{
    return Folders::dropbox(QStringLiteral("Music"));
}

bool isPlayable(const MusicLibrary::Track &track, qint64 firmware)
{
    if (!track.isFile || track.isLossless || !track.location)
        return false;
    // Some URLs of files end as those of folders do.
    const std::string_view location =
        track.location->substr(0, track.location->find_last_not_of('/') + 1);
    const auto dot = location.rfind('.');
    if (dot == std::string_view::npos || location.size() - dot > 5)
        return false;
    const std::string_view extension = location.substr(dot + 1);
    return MusicNaming::isPlayable(QString::fromUtf8(extension), firmware);
}

} // namespace

CVSyncMusic::CVSyncMusic(const QString &volume)
    : CVSyncModule(volume, saveName())
{
}

ModuleKind CVSyncMusic::kind()
{
    return {.saveName = saveName(),
            .make = [](const QString &volume) { return std::make_unique<CVSyncMusic>(volume); },
            .hasDropbox = true,
            .setSelectedIdentifiers = setSelectedIdentifiers};
}

QString CVSyncMusic::saveName()
{
    return QStringLiteral("Music");
}

FileResult<std::vector<MusicLibrary::Playlist>> CVSyncMusic::availableIdentifiers()
{
    FileManagerTools::createPath(dropbox());
    return playlistsOf(Settings::musicLibrary());
}

FileResult<std::vector<MusicLibrary::Playlist>>
CVSyncMusic::playlistsOf(Settings::MusicSource source)
{
    const auto library = MusicSources::read(source, {});
    if (!library)
        return library.error();
    return library->playlists();
}

QString CVSyncMusic::placeOf(Settings::MusicSource source)
{
    return MusicSources::place(source);
}

std::optional<QStringList> CVSyncMusic::selectedIdentifiersForPSP(const QString &volume)
{
    return ModuleSelection::read(saveName(), volume);
}

void CVSyncMusic::setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP)
{
    ModuleSelection::store(identifiers, saveName(), forPSP);
}

QString CVSyncMusic::moduleName() const
{
    return localized("Music");
}

QString CVSyncMusic::rootSyncFolder() const
{
    return pspVolume() + QStringLiteral("/PSP/MUSIC");
}

bool CVSyncMusic::shouldClearUnsyncedFiles() const
{
    return true;
}

QStringList CVSyncMusic::ownSettings() const
{
    return {QString::number(static_cast<int>(Settings::organizeMusicBy())),
            QString::number(static_cast<int>(Settings::sortMusicBy()))};
}

std::vector<CVSyncItem> CVSyncMusic::itemsToSync()
{
    std::vector<CVSyncItem> items;
    addLibraryItems(items);
    if (Settings::syncDropboxes())
        addDropboxItems(items);
    return items;
}

void CVSyncMusic::addLibraryItems(std::vector<CVSyncItem> &items)
{
    const MusicReading reading{
        .part = MusicLibrary::Part::Everything,
        .selected = selectedIdentifiers(),
        .shouldStop = [this] { return shouldStop(); },
        .progress =
            [this](int done, int total) {
                tellProgress(filled(localized("Reading songs: %@ of %@"),
                                    {QString::number(done), QString::number(total)}));
            },
    };
    const auto library = MusicSources::read(Settings::musicLibrary(), reading);
    if (library && library->unreadPart)
        noteUnreadableLibrary(*library->unreadPart);
    if (!library) {
        if (isAnythingSelected())
            noteUnreadableLibrary(library.error());
        return;
    }
    const bool detailed = Settings::useDetailedLogging();
    const qint64 firmware = Settings::firmwareVersion();
    const QString root = rootSyncFolder() + u'/';
    MusicNaming naming(Settings::organizeMusicBy(), Settings::sortMusicBy());
    for (const MusicLibrary::Playlist &playlist : library->playlists()) {
        const QString name = playlist.name.value_or(QString());
        if (detailed)
            qCInfo(lcModules).noquote() << "Found playlist:" << name;
        const auto identifier = playlist.identifier();
        if (!identifier || !isSelected(*identifier))
            continue;
        if (detailed)
            qCInfo(lcModules).noquote() << "Processing playlist:" << name;
        naming.beginPlaylist(name);
        int position = 0;
        for (const std::int64_t id : playlist.tracks) {
            if (shouldStop())
                return;
            const auto track = library->track(id);
            if (!track || !isPlayable(*track, firmware))
                continue;
            if (detailed)
                qCInfo(lcModules) << "Track" << id << "is valid and will be synced";
            const int place = position++;
            // What lies elsewhere has its number all the same, but there is nothing to copy.
            const auto source = FileUrl::path(*track->location);
            if (!source)
                continue;
            const QString suffix =
                u'.' + MusicNaming::extensionOnStick(PathComponents::extensionOf(*source));
            const QString relative = naming.relativePath(*track, place, suffix);
            QString destination;
            destination.reserve(root.size() + relative.size() + suffix.size());
            destination.append(root).append(relative).append(suffix);
            items.emplace_back(*source, std::move(destination), relative);
        }
    }
}

void CVSyncMusic::addDropboxItems(std::vector<CVSyncItem> &items) const
{
    const qint64 firmware = Settings::firmwareVersion();
    const QString from = dropbox() + u'/';
    const QString root = rootSyncFolder() + u'/';
    for (const FolderEntry &entry : FileManager::defaultManager().subpaths(dropbox())) {
        const QStringView extension = PathComponents::extensionOf(entry.path);
        if (entry.isFolder || !MusicNaming::isPlayable(extension, firmware))
            continue;
        const QString onStick =
            entry.path.chopped(extension.size()) + MusicNaming::extensionOnStick(extension);
        items.emplace_back(from + entry.path, root + onStick, entry.path);
    }
}
