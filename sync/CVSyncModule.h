#pragma once

#include "platform/files/FileManager.h"
#include "sync/CVSyncItem.h"
#include "sync/CVSyncModuleDelegate.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// One kind of media on its way to the stick. A subclass says what it wants there (itemsToSync) and
/// where (rootSyncFolder); the base class names duplicates apart, measures, drops what is in place,
/// cleans the folder, copies, and writes the module's index.
///
/// A module lives for one run or one estimate and is used by one thread. A run calls prepare(true),
/// cleanUp(), sync() and finalize(), in this order; an estimate calls prepare(false) alone.
class CVSyncModule : public FileOperationHandler
{
public:
    /// The delegate is not owned and outlives the module. The module's selection for the delegate's
    /// volume is read here, once.
    CVSyncModule(CVSyncModuleDelegate *delegate, const QString &saveName);
    ~CVSyncModule() override;
    CVSyncModule(const CVSyncModule &) = delete;
    CVSyncModule &operator=(const CVSyncModule &) = delete;

    /// The name shown while the module syncs, localized.
    virtual QString moduleName() const = 0;
    /// Fixed: preference keys and file names on the stick are formed from it.
    QString moduleSaveName() const { return m_saveName; }

    /// The folder that the clean-up walks.
    virtual QString rootSyncFolder() const;
    /// Whether files below that folder that are not part of the run are removed.
    virtual bool shouldClearUnsyncedFiles() const;
    /// Everything that the selection wants. Destinations are absolute and in normal form.
    virtual std::vector<CVSyncItem> itemsToSync();

    /// Builds the queue, empty when the preference "sync" + save name is off. With `filter`, what
    /// is in place already is dropped from it, and what is there in another size is removed.
    void prepare(bool filter);

    /// Destinations that occur again become "name.1.ext", "name.2.ext" and so on, in item order;
    /// where the stick doesn't tell letter case apart, so do those that differ in case only.
    static std::vector<CVSyncItem> fixDuplicateDestinations(std::vector<CVSyncItem> items,
                                                            bool tellsCaseApart = true);

    /// Bytes still to copy, and bytes of the whole selection.
    quint64 syncQueueSize() const { return m_syncQueueSize; }
    quint64 syncEstimateSize() const { return m_syncEstimateSize; }

    /// Removes what the run does not place from the module's folder, as the preference "ownOnly"
    /// says.
    virtual void cleanUp();
    /// The same for any folder on the stick; with `ownOnly` only files of the module's last index.
    void cleanUp(const QString &folder, bool ownOnly);

    /// Copies the queue.
    void sync();

    /// Writes the index of what is in place now.
    void finalize();

    // The hooks of the module's file operations: the delegate hears of chunks and errors.
    bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) override;
    bool fileManagerShouldProceedAfterError(const FileError &error) override;

protected:
    /// Copies one item of the queue to its destination, making the folders above it; false where it
    /// did not arrive.
    virtual bool copyItem(const CVSyncItem &item);

    QString pspVolume() const { return m_delegate->pspVolume(); }
    bool isSelected(const QString &identifier) const { return m_selected.contains(identifier); }

private:
    // What one look at an item's source told, kept so that no question asks the disk again.
    struct Measured
    {
        bool exists = false;
        bool isFolder = false;
        quint64 ownSize = 0; // of a link itself, not of its target
    };

    struct CleanUp; // what one clean-up knows

    quint64 calculateFileSizes();
    quint64 queuedBytes() const;
    static Measured measure(CVSyncItem &item);
    void filterQueue();
    bool shouldCopy(const CVSyncItem &item, const Measured &source);
    bool isInPlace(const CVSyncItem &item, const Measured &source,
                   const FileStatus &destination) const;
    enum class Reach { ThroughLink, Missing, Present };
    Reach reachOf(const QString &folder);
    bool shouldRemove(const CleanUp &pass, size_t entry, const QString &path) const;
    void removeDuringCleanUp(CleanUp &pass, size_t entry, const QString &path);
    void collectSyncedFiles();
    QString comparable(const QString &path) const;
    void syncItem(const CVSyncItem &item);

    CVSyncModuleDelegate *const m_delegate;
    const QString m_saveName;
    const QStringList m_identifiers;
    const QSet<QString> m_selected;

    std::vector<CVSyncItem> m_syncQueue;
    std::vector<Measured> m_measured; // one per item of the queue
    QSet<QString> m_allSyncedFiles;   // as comparable() gives them
    QStringList m_syncIndex;          // volume-relative
    QHash<QString, Reach> m_reach;    // of folders on the stick
    QString m_lastFolder;             // that something was copied into
    bool m_logsInDetail = false;
    quint64 m_syncQueueSize = 0;
    quint64 m_syncEstimateSize = 0;
};
