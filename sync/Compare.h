#pragma once

#include "platform/files/FileManager.h"
#include "sync/CVSyncItem.h"
#include "sync/StickNames.h"
#include "sync/SyncPlan.h"

#include <QSet>
#include <QString>

#include <optional>
#include <vector>

/// An item with what one look at its source and its destination told.
struct MeasuredItem
{
    CVSyncItem item; ///< its size is known
    bool exists = false;
    bool isFolder = false;
    FileStatus destination = {}; ///< links not followed
    bool isEqualTree = false;    ///< both are folders with the same contents
    bool isDamaged = false;      ///< both are files of one size with other contents
    QString link = {};           ///< on the way to the destination; empty: none
};

/// A folder of the stick that is cleaned up, with everything below it.
struct StickFolder
{
    QString path;                     ///< absolute
    bool ownOnly = false;             ///< of files only those go that the last sync placed
    std::vector<FolderEntry> entries; ///< as FileManager::subpathsWithSizes() lists them
    QString link = {}; ///< on the way to the folder, which is then left alone; empty: none
};

/// All that decides what a run does for one kind.
struct KindInput
{
    QString volume;
    QString saveName;
    QString moduleName;
    bool shouldClearUnsyncedFiles = false;
    bool takesStickSpace = true;
    quint64 clusterSize = 0;         ///< bytes; 0 where unknown
    std::vector<MeasuredItem> items; ///< destinations are as the stick holds them, and unique
    std::vector<StickFolder> folders;
    /// Keys, relative to the volume, of what the last index lists; nothing where there is none.
    std::optional<QSet<QString>> lastIndex;
    QSet<QString> unfinished = {};  ///< such keys of what an interrupted run was to place
    std::optional<int> shownLevels; ///< of folders in the kind's own; nothing: all
    QString root;                   ///< the kind's own folder
};

/// The rules of a run, and nothing else: no disk, no settings, no time.
namespace Compare {

/// Gives items that share a destination different ones, "name.1.ext" and so on, in item order. What
/// the stick takes for one path counts as one, and there a number that is given is a free one.
std::vector<CVSyncItem> fixDuplicateDestinations(std::vector<CVSyncItem> items,
                                                 const StickNames &names);

KindPlan plan(KindInput input, const StickNames &names);

} // namespace Compare
