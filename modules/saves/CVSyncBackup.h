#pragma once

#include "sync/ModuleKind.h"

#include <vector>

class Clock;

/// Copies the PSP's game saves ("PSP/SAVEDATA" on the stick) to the computer, where they are kept
/// as a dated history: "<save>/<timestamp>/<save>" below the backup root, "Backup/Game Saves" in
/// the documents folder. A timestamp is whole seconds since 1970 in decimal digits. What changed on
/// the stick since its last backup becomes a new one; a copy appears in the history only when it is
/// whole.
///
/// Restoring and deleting run on the main thread, never while a run is active: the caller sees to
/// that.
class CVSyncBackup : public CVSyncModule
{
public:
    CVSyncBackup(const QString &volume, const Clock &clock);

    /// As the catalogue of kinds has it. The clock is not owned and outlives the runs.
    static ModuleKind kind(const Clock &clock);
    static QString saveName();

    /// The saves that have backups, and the timestamps of one save's, both in byte order of names
    /// as they lie there.
    static QStringList availableIdentifiers();
    static QStringList availableSubIdentifiersForIdentifier(const QString &identifier);
    /// The number that a backup's folder name begins with; 0 for none, and for one that is no time.
    static double timestampOf(const QString &name);
    /// The folder that holds a backup's own files; the identifier is "<save>/<timestamp>", and any
    /// other has none.
    static QString folderOf(const QString &identifier);
    /// Kept for front-ends; every save is backed up whatever it says.
    static void setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP);

    enum class Restored {
        Done,
        NoBackup, ///< there is none of that identifier; nothing was changed
        NoStick,  ///< no PSP's stick lies at the volume; nothing was changed
        NotKept,  ///< the save on the stick could not be kept or moved away; it is as it was
        Failed    ///< the stick is without that save; what it had is the newest backup
    };
    /// Puts one backup back on the stick at `volume`. The save that is there, if it differs,
    /// becomes the newest backup first.
    static Restored restoreBackupWithIdentifier(const QString &identifier, const QString &volume,
                                                const Clock &clock);
    /// Moves one backup, or all of a save, to the Trash; false where that fails or there is none.
    static bool deleteBackupWithIdentifier(const QString &identifier);

    QString moduleName() const override;
    QString rootSyncFolder() const override;
    /// Where games and their saves lie on the stick: what others left behind goes there too.
    std::vector<FolderToCleanUp> foldersToCleanUp() const override;
    std::vector<CVSyncItem> itemsToSync() override;
    ItemPlacer *placer() override { return &m_placer; }

private:
    /// Writes and prunes the history.
    class Placer : public ItemPlacer
    {
    public:
        CopyOutcome place(const CVSyncItem &item, FileOperationHandler &handler) override;
        void prune() override;
    };

    const Clock &m_clock;
    Placer m_placer;
};
