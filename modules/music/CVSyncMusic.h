#pragma once

#include "modules/music/MusicLibrary.h"
#include "sync/ModuleKind.h"
#include "util/Settings.h"

#include <optional>
#include <vector>

/// Puts the chosen playlists of the library that "musicSource" names and the music dropbox into
/// "PSP/MUSIC". The library is only read.
class CVSyncMusic : public CVSyncModule
{
public:
    explicit CVSyncMusic(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The library's playlists in its order; errors are those of MusicLibrary. Makes the music
    /// dropbox folder where it is missing. Any thread.
    static FileResult<std::vector<MusicLibrary::Playlist>> availableIdentifiers();
    /// Those of another source; no folder is made.
    static FileResult<std::vector<MusicLibrary::Playlist>>
    playlistsOf(Settings::MusicSource source);
    /// Where the source's library lies, whether or not it is there.
    static QString placeOf(Settings::MusicSource source);
    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;
    std::vector<CVSyncItem> itemsToSync() override;
    std::optional<int> shownLevels() const override { return 1; }

private:
    qint64 source() const override { return static_cast<qint64>(Settings::musicLibrary()); }
    QStringList ownSettings() const override;
    void addLibraryItems(std::vector<CVSyncItem> &items);
    void addDropboxItems(std::vector<CVSyncItem> &items) const;
};
