#pragma once

#include "platform/volumes/Volumes.h"

#include <memory>

/// The desktop's mounts with a local path, as GIO's volume monitor gives them, in its order. Events
/// need Qt's event loop to be GLib's, which is Qt's default on the desktop.
class GioVolumes : public Volumes
{
    Q_OBJECT
public:
    /// The volumes that are mounted now are not announced.
    explicit GioVolumes(QObject *parent = nullptr);
    ~GioVolumes() override;

    QStringList mountedRemovableMedia() const override;
    Ejection unmountAndEject(const QString &path) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
