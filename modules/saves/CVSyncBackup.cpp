#include "modules/saves/CVSyncBackup.h"

#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/desktop/Workspace.h"
#include "sync/ErrorLog.h"
#include "sync/Log.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <algorithm>

namespace {

QString backupFolder()
{
    return Folders::documents() + QStringLiteral("/Backup");
}

QString backupRoot()
{
    return backupFolder() + QStringLiteral("/Game Saves");
}

// Where copies grow until they are whole: beside the history, on the same file system.
QString partialFolder()
{
    return backupFolder() + QStringLiteral("/.partial");
}

// Where a save grows that is being restored, on the stick.
QString partialRestore(const QString &volume)
{
    return volume + QStringLiteral("/.caravel/Restore");
}

// Where one goes that is replaced.
QString replacedSave(const QString &volume)
{
    return volume + QStringLiteral("/.caravel/Replaced");
}

void removeLeftovers(const QString &volume)
{
    for (const QString &leftover : {partialRestore(volume), replacedSave(volume)}) {
        if (files().linkStatus(leftover).exists())
            files().remove(leftover, nullptr);
    }
}

QString savedataFolder(const QString &volume)
{
    return volume + QStringLiteral("/PSP/SAVEDATA");
}

QStringList namesIn(const QString &folder)
{
    QStringList names;
    for (const FolderEntry &entry : files().entries(folder))
        names.append(entry.path);
    return names;
}

QString timestamp(const Clock &clock)
{
    return QString::number((clock.now().toMSecsSinceEpoch() + 500) / 1000);
}

// A place for a backup of now that nothing has yet: two within one second, or under a clock that
// was set back, must not meet.
QString newBackupFolder(const QString &save, const Clock &clock)
{
    const QString folder = backupRoot() + u'/' + save + u'/';
    const double latest = CVSyncBackup::latestTimestampForBackupIdentifier(save);
    qint64 number = std::max(timestamp(clock).toLongLong(), static_cast<qint64>(latest) + 1);
    while (files().linkStatus(folder + QString::number(number)).exists())
        ++number;
    return folder + QString::number(number);
}

// Copies a save into a new folder of the history, which is there once all of it is, in one step.
bool copyWhole(const QString &source, const QString &backup, FileOperationHandler &handler)
{
    const QString partial = partialFolder();
    if (files().linkStatus(partial).exists())
        files().remove(partial, &handler); // of a run that was interrupted
    FileManagerTools::createPath(partial);
    FileManagerTools::createPath(PathComponents::folderOf(backup));
    bool whole = files().copy(source, partial + u'/' + PathComponents::lastOf(source), &handler);
    files().flush(partial);
    whole = whole && files().move(partial, backup, &handler);
    if (!whole)
        files().remove(partial, nullptr);
    return whole;
}

} // namespace

CVSyncBackup::CVSyncBackup(CVSyncModuleDelegate *delegate, const Clock &clock)
    : CVSyncModule(delegate, saveName())
    , m_clock(clock)
{
}

QString CVSyncBackup::saveName()
{
    return QStringLiteral("Backup");
}

QString CVSyncBackup::moduleName() const
{
    return localized("Backup");
}

QString CVSyncBackup::rootSyncFolder() const
{
    return backupRoot();
}

// --- The history

QStringList CVSyncBackup::availableIdentifiers()
{
    return namesIn(backupRoot());
}

QStringList CVSyncBackup::availableSubIdentifiersForIdentifier(const QString &identifier)
{
    return isSave(identifier) ? namesIn(backupRoot() + u'/' + identifier) : QStringList();
}

double CVSyncBackup::timestampOf(const QString &name)
{
    qsizetype digits = 0;
    while (digits < name.size() && name[digits] >= u'0' && name[digits] <= u'9')
        ++digits;
    return name.first(digits).toDouble();
}

double CVSyncBackup::latestTimestampForBackupIdentifier(const QString &identifier)
{
    const QStringList names = availableSubIdentifiersForIdentifier(identifier);
    return names.isEmpty() ? 0 : timestampOf(*std::max_element(names.begin(), names.end()));
}

QString CVSyncBackup::folderOf(const QString &identifier)
{
    return backupRoot() + u'/' + identifier + u'/' + identifier.section(u'/', 0, 0);
}

bool CVSyncBackup::isSave(const QString &identifier)
{
    return PathComponents::count(identifier) == 1;
}

bool CVSyncBackup::isBackup(const QString &identifier)
{
    return PathComponents::count(identifier) == 2;
}

// --- The run

std::vector<CVSyncItem> CVSyncBackup::itemsToSync()
{
    std::vector<CVSyncItem> items;
    const QString folder = savedataFolder(pspVolume());
    for (const QString &name : namesIn(folder)) {
        if (name == u".DS_Store")
            continue;
        const QString latest = QString::number(latestTimestampForBackupIdentifier(name), 'f', 0);
        const QString previous = folderOf(name + u'/' + latest);
        const QString source = folder + u'/' + name;
        if (!files().contentsEqual(previous, source))
            items.emplace_back(source, newBackupFolder(name, m_clock) + u'/' + name, name);
    }
    return items;
}

void CVSyncBackup::cleanUp()
{
    removeLeftovers(pspVolume()); // of a restore that was interrupted
    cleanUp(pspVolume() + QStringLiteral("/PSP/GAME"), false);
    cleanUp(savedataFolder(pspVolume()), false);
    if (Settings::backupsToKeep() >= 1)
        removeOldBackups();
}

void CVSyncBackup::removeOldBackups()
{
    // The run may add one more.
    constexpr qsizetype kept[] = {9, 24, 49};
    const qint64 choice = Settings::backupsToKeep();
    if (choice > static_cast<qint64>(std::size(kept)))
        return;
    ErrorLog errors;
    for (const QString &save : availableIdentifiers()) {
        QStringList names = availableSubIdentifiersForIdentifier(save);
        std::sort(names.begin(), names.end());
        for (qsizetype i = 0; i < names.size() - kept[choice - 1]; ++i)
            files().remove(backupRoot() + u'/' + save + u'/' + names[i], &errors);
    }
}

bool CVSyncBackup::copyItem(const CVSyncItem &item)
{
    return copyWhole(item.source, PathComponents::folderOf(item.destination), *this);
}

// --- Restoring and deleting

CVSyncBackup::Restored CVSyncBackup::restoreBackupWithIdentifier(const QString &identifier,
                                                                 const QString &volume,
                                                                 const Clock &clock)
{
    if (!isBackup(identifier) || !files().exists(folderOf(identifier)))
        return Restored::NoBackup;
    // A stick that was pulled may leave its mount point, which is no place to restore to.
    if (volume.isEmpty() || !files().exists(volume + QStringLiteral("/MEMSTICK.IND")))
        return Restored::NoStick;
    const QString save = identifier.section(u'/', 0, 0);
    const QString backup = folderOf(identifier);
    const QString target = savedataFolder(volume) + u'/' + save;
    ErrorLog errors;
    removeLeftovers(volume);
    if (files().linkStatus(target).exists()) {
        if (files().contentsEqual(backup, target))
            return Restored::Done;
        // Kept first, and whole, before anything on the stick is touched.
        if (!copyWhole(target, newBackupFolder(save, clock), errors))
            return Restored::NotKept;
        // It goes in one step, too: what is left of half a save would be backed up as one.
        FileManagerTools::createPath(volume + QStringLiteral("/.caravel"));
        if (!files().move(target, replacedSave(volume), &errors))
            return Restored::NotKept;
    }
    // Half a save is worse than none: it comes to its place whole, in one step.
    removeLeftovers(volume);
    const QString partial = partialRestore(volume);
    FileManagerTools::createPath(savedataFolder(volume));
    FileManagerTools::createPath(volume + QStringLiteral("/.caravel"));
    const bool done =
        files().copy(backup, partial, &errors) && files().move(partial, target, &errors);
    if (!done)
        removeLeftovers(volume);
    files().flush(savedataFolder(volume));
    return done ? Restored::Done : Restored::Failed;
}

bool CVSyncBackup::deleteBackupWithIdentifier(const QString &identifier)
{
    const QString path = backupRoot() + u'/' + identifier;
    if ((isSave(identifier) || isBackup(identifier)) && files().linkStatus(path).exists())
        return Workspace::recycle(path);
    qCWarning(lcModules).noquote() << "There is no backup to delete named" << identifier;
    return false;
}
