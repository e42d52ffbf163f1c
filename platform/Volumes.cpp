#include "platform/Volumes.h"

#include "platform/FolderVolumes.h"
#include "platform/GioVolumes.h"

std::unique_ptr<Volumes> makeVolumes(const QString &volumesFolder)
{
    if (volumesFolder.isEmpty())
        return std::make_unique<GioVolumes>();
    return std::make_unique<FolderVolumes>(volumesFolder);
}
