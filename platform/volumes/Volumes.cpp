#include "platform/volumes/Volumes.h"

#include "platform/volumes/own/FolderVolumes.h"
#include "platform/volumes/own/GioVolumes.h"

std::unique_ptr<Volumes> makeVolumes(const QString &volumesFolder)
{
    if (volumesFolder.isEmpty())
        return std::make_unique<GioVolumes>();
    return std::make_unique<FolderVolumes>(volumesFolder);
}
