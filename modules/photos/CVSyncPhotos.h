#pragma once

#include "modules/photos/PhotoLibrary.h"
#include "sync/ModuleKind.h"
#include "util/Settings.h"

#include <optional>
#include <vector>

/// Puts the chosen albums of the library that "photosSource" names and the photo dropbox into
/// "PSP/PHOTO". The library is only read.
class CVSyncPhotos : public CVSyncModule
{
public:
    explicit CVSyncPhotos(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The library's albums in file order; errors are those of PhotoLibrary. Any thread.
    static FileResult<std::vector<PhotoLibrary::Album>> availableIdentifiers();
    /// Those of another source.
    static FileResult<std::vector<PhotoLibrary::Album>> albumsOf(Settings::PhotosSource source);
    /// Where the source's library lies, whether or not it is there.
    static QString placeOf(Settings::PhotosSource source);
    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;
    std::vector<CVSyncItem> itemsToSync() override;
    std::optional<int> shownLevels() const override { return 1; }

private:
    qint64 source() const override { return static_cast<qint64>(Settings::photoLibrary()); }
    QStringList ownSettings() const override;
    void addAlbumItems(std::vector<CVSyncItem> &items);
    void addAlbum(const PhotoLibrary &library, const PhotoLibrary::Album &album,
                  std::vector<CVSyncItem> &items) const;
    void addDropboxItems(std::vector<CVSyncItem> &items) const;
};
