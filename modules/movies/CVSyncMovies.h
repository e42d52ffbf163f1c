#pragma once

#include "sync/ModuleKind.h"

#include <optional>
#include <vector>

/// Where a converted movie ended up.
struct StoredMovie
{
    std::optional<QString> identifier; ///< of the library; nothing where it isn't there
    /// Full path of the movie that was kept outside of the library; empty too where even that
    /// failed, and it is lost.
    QString keptAs;
};

/// Puts the chosen movies and the movie dropbox into "MP_ROOT", and keeps the library of converted
/// movies: "Movies/<id>/<title>/<id>.MP4" and ".THM" in the documents folder, ids "M4V00001" to
/// "M4V99999". A movie's identifier is "<id>/<title>". The library's operations run on the main
/// thread where nothing else is said; a run may be reading it meanwhile.
class CVSyncMovies : public CVSyncModule
{
public:
    explicit CVSyncMovies(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The library's movies in byte order of their ids; a folder may be a link to one. Any thread.
    static QStringList availableIdentifiers();
    /// The lowest free id; nothing where all are taken.
    static std::optional<QString> nextAvailableMovieId();

    /// Full path of a movie's file with that ending (".MP4", ".THM"). The identifier must be one of
    /// the library's form.
    static QString fileOf(const QString &identifier, const QString &ending);

    /// Moves the converter's result into the library under a new id. Where that can't be done the
    /// finished files are kept in the support folder under the title. Any thread, one call at a
    /// time: the library may lie on another disk.
    static StoredMovie moveConvertedMovieNamed(const QString &title);
    /// Removes what an interrupted conversion or move into the library left, but a thumbnail.
    static void removeLeftovers();

    /// Moves the movie's folder to the Trash; false, said in the system log, where it can't.
    static bool deleteMovieWithIdentifier(const QString &identifier);
    /// Gives the movie another title, in the library and in the selections: the preferences' and
    /// that of the stick at `forPSP` (empty: none). False, said in the system log, when the title
    /// is no name for a folder (empty, with a "/", too long) or there is no such movie; nothing
    /// changes then.
    static bool renameMovieWithIdentifier(const QString &identifier, const QString &newName,
                                          const QString &forPSP);

    static std::optional<QStringList> selectedIdentifiersForPSP(const QString &volume);
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    bool shouldClearUnsyncedFiles() const override;
    std::vector<CVSyncItem> itemsToSync() override;

private:
    /// Those of the library, by one state of it and of the selection: a movie that is renamed
    /// meanwhile stays selected.
    QStringList selectedMovies() const;
    void addLibraryItems(std::vector<CVSyncItem> &items) const;
    void addDropboxItems(std::vector<CVSyncItem> &items) const;
};
