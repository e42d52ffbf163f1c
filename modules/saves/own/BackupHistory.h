#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class Clock;
class FileOperationHandler;

/// One kept state of a game save.
struct Backup
{
    QString save;
    QString timestamp; ///< its folder's name

    /// The one of an identifier, "<save>/<timestamp>"; nothing for a text of another form, which
    /// might lead out of the history.
    static std::optional<Backup> named(const QString &identifier);

    /// The folder that holds the save's own files.
    QString folder() const;
};

/// The game saves that are kept on the computer: "<save>/<timestamp>/<save>" below the root. No
/// call may come while another changes the history.
namespace BackupHistory {

/// "Backup/Game Saves" in the documents folder.
QString root();

/// The saves that have backups, and the timestamps of one save's, both in byte order of names as
/// they lie there.
QStringList saves();
QStringList timestampsOf(const QString &save);

/// The number that a backup's folder name begins with; 0 for none, and for one that is no time.
double timestampOf(const QString &name);
/// The newest of a save's timestamps; 0 where it has none.
double latestTimestampOf(const QString &save);

/// A folder for a backup of now, that nothing has yet.
QString newFolder(const QString &save, const Clock &clock);
/// Copies a save into a new folder of the history, which is there once all of it is, in one step.
bool keep(const QString &source, const QString &newFolder, FileOperationHandler &handler);

/// Removes the oldest backups of each save, so that so many stay.
void prune(qsizetype kept);
/// Moves one backup, or all of a save, to the Trash; false where that fails or there is none.
bool moveToTrash(const QString &identifier);

} // namespace BackupHistory
