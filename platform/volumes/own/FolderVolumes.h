#pragma once

#include "platform/volumes/VolumeIdentity.h"
#include "platform/volumes/Volumes.h"

#include <QFileSystemWatcher>
#include <QSet>
#include <QTimer>

#include <vector>

/// Each folder directly inside one folder is a mounted removable volume, in byte order of names,
/// hidden ones left out; a link to a folder counts as one. For emulators' memory-stick folders and
/// for tests. What is copied in comes bit by bit: whenever something has come to a volume's own
/// folder, or gone from it, and a second has passed, the volume is announced once more. Ejecting
/// moves a volume to ".ejected/NAME" inside the folder, announced first; it is refused while that
/// name is taken.
class FolderVolumes : public Volumes
{
    Q_OBJECT
public:
    /// The folder is watched from now on, also when it is only made later. The volumes that are
    /// there now are not announced.
    explicit FolderVolumes(const QString &folder, QObject *parent = nullptr);

    QStringList mountedRemovableMedia() const override;
    Ejection unmountAndEject(const QString &path) override;

private:
    struct Volume
    {
        QString path;
        VolumeIdentity identity;

        bool operator==(const Volume &) const = default;
    };

    std::vector<Volume> scan() const;
    void watch();
    void watch(const std::vector<Volume> &volumes, const std::vector<Volume> &watched);
    void rescan();
    void announceAgain();

    const QString m_folder;

    // Main thread.
    QFileSystemWatcher m_watcher; // of the folder
    QFileSystemWatcher m_volumesWatcher;
    std::vector<Volume> m_known;
    QSet<QString> m_changed; // volumes that are announced again when all have been at rest
    QTimer m_rest;
};
