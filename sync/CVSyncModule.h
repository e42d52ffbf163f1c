#pragma once

#include "platform/files/FileError.h"
#include "sync/CVSyncItem.h"
#include "sync/ItemPlacer.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

/// A folder that a run's clean-up walks.
struct FolderToCleanUp
{
    QString path; ///< absolute; nothing happens in one that lies elsewhere than on the stick
    bool ownOnly = false; ///< of files only those go that the last sync placed
};

/// One kind of media. A subclass says what it wants on the stick (itemsToSync) and where
/// (rootSyncFolder); it looks at the stick at most, and never changes it.
///
/// A module lives for one run, estimate or preview and is used by one thread.
class CVSyncModule
{
public:
    /// `volume` is the stick's mount path, empty for none. The selection that counts for it is read
    /// here, once.
    CVSyncModule(QString volume, const QString &saveName);
    virtual ~CVSyncModule();
    CVSyncModule(const CVSyncModule &) = delete;
    CVSyncModule &operator=(const CVSyncModule &) = delete;

    /// The name shown while the module syncs, localized.
    virtual QString moduleName() const = 0;
    /// Fixed: preference keys and file names on the stick are formed from it.
    QString moduleSaveName() const { return m_saveName; }

    /// The folder that the items go to.
    virtual QString rootSyncFolder() const;
    /// Whether files in the folders to clean up that are not part of the run are removed.
    virtual bool shouldClearUnsyncedFiles() const;
    /// The root folder, with what the setting "ownOnly" says.
    virtual std::vector<FolderToCleanUp> foldersToCleanUp() const;

    /// Everything that the selection wants. Destinations are absolute and in normal form.
    virtual std::vector<CVSyncItem> itemsToSync();

    /// Why a library that the selection needs, and that exists, could not be read or understood by
    /// itemsToSync(): what it holds is not among the items. Nothing where there is no
    /// such library, or nothing of it is selected.
    const std::optional<FileError> &unreadableLibrary() const { return m_unreadableLibrary; }

    /// What decides which files the module wants: the selection, the library that it is of, and
    /// the settings. Equal for two runs that differ by what the library holds alone.
    QVariantMap basis() const;

    /// How many levels of folders below its own the PSP shows; nothing: all.
    virtual std::optional<int> shownLevels() const { return std::nullopt; }

    /// Asked while the items are gathered; true ends that early. False unless set.
    void setShouldStop(std::function<bool()> shouldStop) { m_shouldStop = std::move(shouldStop); }
    /// Told meanwhile how far that has come where it takes long, in the user's words. Nobody unless
    /// set.
    void setProgress(std::function<void(const QString &)> tell) { m_progress = std::move(tell); }

    /// Who places the items; null: the stick's editor. Owned by the module.
    virtual ItemPlacer *placer();

protected:
    /// Which library the selection is of.
    virtual qint64 source() const { return 0; }
    /// Settings of this kind alone that decide names and formats.
    virtual QStringList ownSettings() const { return {}; }
    QString pspVolume() const { return m_volume; }
    bool isSelected(const QString &identifier) const { return m_selected.contains(identifier); }
    const QSet<QString> &selectedIdentifiers() const { return m_selected; }
    bool isAnythingSelected() const { return !m_selected.isEmpty(); }
    /// For itemsToSync(), of a library that the selection needs; one that is missing is no error.
    void noteUnreadableLibrary(const FileError &error);
    /// What is gathered then is thrown away.
    bool shouldStop() const { return m_shouldStop && m_shouldStop(); }
    const std::function<bool()> &shouldStopQuestion() const { return m_shouldStop; }
    void tellProgress(const QString &text) const
    {
        if (m_progress)
            m_progress(text);
    }

private:
    const QString m_volume;
    const QString m_saveName;
    const QSet<QString> m_selected;
    std::optional<FileError> m_unreadableLibrary;
    std::function<bool()> m_shouldStop;
    std::function<void(const QString &)> m_progress;
};

using ModuleList = std::vector<std::unique_ptr<CVSyncModule>>;
