#include "modules/saves/CVSyncBackup.h"

#include "modules/saves/own/BackupHistory.h"
#include "modules/saves/own/SaveOnStick.h"
#include "platform/core/Localized.h"
#include "platform/files/FileManager.h"
#include "sync/ErrorLog.h"
#include "sync/ModuleSelection.h"
#include "sync/StickEditor.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <iterator>

CVSyncBackup::CVSyncBackup(const QString &volume, const Clock &clock)
    : CVSyncModule(volume, saveName())
    , m_clock(clock)
{
}

ModuleKind CVSyncBackup::kind(const Clock &clock)
{
    // Saves are copied to the computer: they take no room on the stick.
    return {.saveName = saveName(),
            .make =
                [&clock](const QString &volume) {
                    return std::make_unique<CVSyncBackup>(volume, clock);
                },
            .takesPart = [] { return Settings::syncBackup(); },
            .countsInEstimate = false,
            .setSelectedIdentifiers = setSelectedIdentifiers,
            .isIdentifier = ModuleSelection::isIdentifier};
}

QString CVSyncBackup::saveName()
{
    return QStringLiteral("Backup");
}

void CVSyncBackup::setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP)
{
    ModuleSelection::store(identifiers, saveName(), forPSP);
}

QString CVSyncBackup::moduleName() const
{
    return localized("Backup");
}

QString CVSyncBackup::rootSyncFolder() const
{
    return BackupHistory::root();
}

// --- The history

QStringList CVSyncBackup::availableIdentifiers()
{
    return BackupHistory::saves();
}

QStringList CVSyncBackup::availableSubIdentifiersForIdentifier(const QString &identifier)
{
    return BackupHistory::timestampsOf(identifier);
}

double CVSyncBackup::timestampOf(const QString &name)
{
    return BackupHistory::timestampOf(name);
}

QString CVSyncBackup::folderOf(const QString &identifier)
{
    const auto backup = Backup::named(identifier);
    return backup ? backup->folder() : QString();
}

bool CVSyncBackup::deleteBackupWithIdentifier(const QString &identifier)
{
    return BackupHistory::moveToTrash(identifier);
}

// --- The run

std::vector<CVSyncItem> CVSyncBackup::itemsToSync()
{
    std::vector<CVSyncItem> items;
    const QString folder = SaveOnStick::parentOn(pspVolume());
    // Through a link lies something else than the PSP's own saves.
    if (!StickEditor(pspVolume()).linkOnTheWayTo(folder + QStringLiteral("/save")).isEmpty())
        return items;
    for (const FolderEntry &entry : files().entries(folder)) {
        const QString &name = entry.path;
        if (name == u".DS_Store" || shouldStop())
            continue;
        const Backup previous{name,
                              QString::number(BackupHistory::latestTimestampOf(name), 'f', 0)};
        const QString source = folder + u'/' + name;
        // What a link leads to is no save of the PSP's own.
        if (files().linkStatus(source).kind != FileStatus::Kind::Link &&
            !files().contentsEqual(previous.folder(), source, shouldStopQuestion()))
            items.emplace_back(source, BackupHistory::newFolder(name, m_clock) + u'/' + name, name);
    }
    return items;
}

std::vector<FolderToCleanUp> CVSyncBackup::foldersToCleanUp() const
{
    return {{pspVolume() + QStringLiteral("/PSP/GAME"), false},
            {SaveOnStick::parentOn(pspVolume()), false}};
}

CopyOutcome CVSyncBackup::Placer::place(const CVSyncItem &item, FileOperationHandler &handler)
{
    const bool isKept =
        BackupHistory::keep(item.source, PathComponents::folderOf(item.destination), handler);
    return {.ended = isKept ? CopyOutcome::Ended::Complete : CopyOutcome::Ended::Failed};
}

void CVSyncBackup::Placer::prune()
{
    // The run may add one more.
    constexpr qsizetype kept[] = {9, 24, 49};
    const qint64 choice = Settings::backupsToKeep();
    if (choice >= 1 && choice <= std::ssize(kept))
        BackupHistory::prune(kept[choice - 1]);
}

// --- Restoring

CVSyncBackup::Restored CVSyncBackup::restoreBackupWithIdentifier(const QString &identifier,
                                                                 const QString &volume,
                                                                 const Clock &clock)
{
    const auto backup = Backup::named(identifier);
    if (!backup || !files().exists(backup->folder()))
        return Restored::NoBackup;
    // A stick that was pulled may leave its mount point, which is no place to restore to.
    if (volume.isEmpty() || !files().exists(volume + QStringLiteral("/MEMSTICK.IND")))
        return Restored::NoStick;
    ErrorLog errors;
    StickEditor stick(volume);
    SaveOnStick save(stick, backup->save);
    save.removeStaged();
    if (save.exists()) {
        if (files().contentsEqual(backup->folder(), save.folder()))
            return Restored::Done;
        // Kept first, and whole, before anything on the stick is touched.
        const QString newest = BackupHistory::newFolder(backup->save, clock);
        if (!BackupHistory::keep(save.folder(), newest, errors) || !save.takeAway(errors)) {
            save.removeStaged();
            return Restored::NotKept;
        }
    }
    return save.put(backup->folder(), errors) ? Restored::Done : Restored::Failed;
}
