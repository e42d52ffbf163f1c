#pragma once

#include "sync/ModuleKind.h"

#include <optional>
#include <vector>

/// Puts the chosen movies and the movie dropbox into "MP_ROOT", and keeps the library of converted
/// movies: "Movies/<id>/<title>/<id>.MP4" and ".THM" in the documents folder, ids "M4V00001" to
/// "M4V99999". A movie's identifier is "<id>/<title>". The library's operations run on the main
/// thread, where a run may be reading it meanwhile.
class CVSyncMovies : public CVSyncModule
{
public:
    explicit CVSyncMovies(const QString &volume);

    /// As the catalogue of kinds has it.
    static ModuleKind kind();
    static QString saveName();

    /// The library's movies in byte order of their ids. Any thread.
    static QStringList availableIdentifiers();
    /// The lowest free id; nothing where all are taken.
    static std::optional<QString> nextAvailableMovieId();

    /// Full path of a movie's file with that ending (".MP4", ".THM"). The identifier must be one of
    /// the library's form.
    static QString fileOf(const QString &identifier, const QString &ending);

    /// Where the converter leaves its result: "CONVERT" + ending (".MP4", ".THM") in the support
    /// folder.
    static QString convertedFile(const QString &ending);
    /// Moves the converter's result into the library under a new id and returns the new identifier.
    /// Where that can't be done the finished files are kept in the support folder under the title,
    /// and nothing is answered.
    static std::optional<QString> moveConvertedMovieNamed(const QString &title);

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
    void addLibraryItems(std::vector<CVSyncItem> &items) const;
    void addDropboxItems(std::vector<CVSyncItem> &items) const;
};
