#pragma once

#include "modules/music/MusicLibrary.h"
#include "sync/ModuleKind.h"

#include <optional>
#include <vector>

/// Puts the chosen iTunes playlists and the music dropbox into "PSP/MUSIC". The library is only
/// read.
class CVSyncMusic : public CVSyncModule
{
public:
    explicit CVSyncMusic(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The library's playlists in file order; errors are those of MusicLibrary. Makes the music
    /// dropbox folder where it is missing. Any thread.
    static FileResult<std::vector<MusicLibrary::Playlist>> availableIdentifiers();
    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;
    std::vector<CVSyncItem> itemsToSync() override;
    std::optional<int> shownLevels() const override { return 1; }

private:
    QStringList ownSettings() const override;
    void addLibraryItems(std::vector<CVSyncItem> &items);
    void addDropboxItems(std::vector<CVSyncItem> &items) const;
};
