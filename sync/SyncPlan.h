#pragma once

#include "platform/files/FileError.h"
#include "platform/files/FileManager.h"
#include "sync/CVSyncItem.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <vector>

/// What becomes of one thing that the selection wants.
struct PlannedItem
{
    enum class Action {
        Copy,    ///< nothing lies at its destination
        Replace, ///< what lies there goes first
        InPlace,
        LeaveOut,
    };
    enum class Reason {
        None,
        Missing,  ///< the source doesn't exist
        Link,     ///< a link lies on the way to the destination
        TooLarge, ///< for the stick's file system
        NotKept,  ///< what is to go for it could not be copied to the computer; found in the run
        /// The source is other systems' "._" file, which never goes along; what lies at its
        /// destination in another size goes all the same.
        Companion,
    };

    CVSyncItem item;
    Action action = Action::Copy;
    Reason reason = Reason::None; ///< why it is not copied
    quint64 clusterBytes = 0;     ///< what its copy takes of the stick
    quint64 freedBytes = 0;       ///< what removing the replaced file gives back, in clusters
    bool isStranger = false;      ///< what is replaced was placed by no earlier sync

    bool isCopied() const
    {
        return reason == Reason::None && (action == Action::Copy || action == Action::Replace);
    }
};

/// Something that the clean-up removes.
struct PlannedRemoval
{
    QString path;                 ///< absolute
    bool isEmptiedFolder = false; ///< goes only as long as it is empty
    bool isUnwantedFile = false;  ///< one that the kind clears away; else it is clutter
    bool isStranger = false;      ///< a file that no earlier sync placed
    quint64 bytes = 0;            ///< in the stick's clusters
};

/// What a run does for one kind of media.
struct KindPlan
{
    QString saveName;
    QString moduleName;                   ///< as shown to the user
    std::vector<PlannedItem> items;       ///< in the order of the kind
    std::vector<PlannedRemoval> removals; ///< in the order in which they are made
    std::vector<FileError> errors;        ///< met while looking, to be told to the user

    /// Bytes of everything that the selection wants and that exists, as the sources' sizes say.
    quint64 syncEstimateSize = 0;
    /// Bytes of what is to be copied.
    quint64 syncQueueSize = 0;
    // What keeps a sync from starting by itself
    QVariantMap basis;                          ///< what the plan is made of: CVSyncModule::basis()
    QVariantMap lastBasis;                      ///< the same of the last sync
    qsizetype lastPlaced = 0;                   ///< files that the last sync placed
    std::optional<FileError> unreadableLibrary; ///< that the selection needs
    bool hasUnreadableProfile = false;          ///< the selection on the stick is there in vain

    /// Of what is copied or in place, files in deeper folders than the PSP shows.
    unsigned hiddenFiles = 0;

    QStringList inPlace(const QString &volume) const;
    /// Of the stick's clusters that the copies take; a kind that goes elsewhere takes none.
    quint64 clusterBytes() const;
    /// That removals and replacements give back.
    quint64 freedBytes() const;
};

/// What a run will do, in its order. A value: making one changes nothing on the stick, and a plan
/// that nobody carries out is a preview.
struct SyncPlan
{
    QString volume = {};    ///< mount path of the stick
    VolumeSpace space = {}; ///< of the stick, when the plan was made
    std::vector<KindPlan> kinds = {};
    /// False where planning was cut short: there are no kinds then.
    bool isComplete = true;
    /// Relative to the volume: what a run that was interrupted was to place; empty: none was.
    QStringList unfinished = {};

    quint64 syncBytesTotal() const;
    quint64 syncBytesEstimate() const;
    quint64 clusterBytes() const;
    quint64 freedBytes() const;
    /// Nothing is copied unless all of it fits: the bytes must leave some of those that are free
    /// once the removals are made, and the clusters must not exceed them.
    bool fitsIn(quint64 free) const;
    /// Foretells it.
    bool fits() const { return fitsIn(space.free + freedBytes()); }
};
