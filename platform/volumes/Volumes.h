#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

/// How an ejection ended.
struct Ejection
{
    bool isDone = false;
    QString reason = {}; ///< why not, in the volume service's words; English, for the user
};

/// The removable volumes of the machine, their events, and their ejection.
class Volumes : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Mount paths in a stable order, each in normal form without a trailing slash. Any thread.
    virtual QStringList mountedRemovableMedia() const = 0;

    /// Unmounts and ejects the volume at the path and waits for the outcome; a refusal goes to the
    /// system log too. Any thread; from the main thread it does not serve the event loop meanwhile.
    virtual Ejection unmountAndEject(const QString &path) = 0;

Q_SIGNALS:
    // All on the main thread, each with the mount path.
    /// Also for one that is mounted already, when what lies in it has changed.
    void didMount(const QString &path);
    /// Before an announced unmount. A volume that is pulled out is not announced.
    void willUnmount(const QString &path);
    void didUnmount(const QString &path);
};

/// The source of volumes for a folder of volumes, or the desktop's own mounts when it is empty.
/// Called and owned on the main thread.
std::unique_ptr<Volumes> makeVolumes(const QString &volumesFolder);
