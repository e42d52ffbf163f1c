#include "sync/DeviceIcon.h"

#include "platform/desktop/Workspace.h"
#include "platform/files/FileManager.h"
#include "platform/files/FinderInfo.h"

namespace DeviceIcon {

void set(const QString &volume, const QString &resourceFolder, const QDate &today)
{
    FileManager &files = FileManager::defaultManager();
    const QString icon = volume + QStringLiteral("/.VolumeIcon.icns");
    const QString resource = QStringLiteral("%1/PSP%2.icns").arg(resourceFolder).arg(today.month());
    if (files.linkStatus(icon).exists())
        files.remove(icon, nullptr);
    files.copy(resource, icon, nullptr);
    FinderInfo::setCustomIconFlag(volume);
    Workspace::noteFileSystemChanged(volume);
}

} // namespace DeviceIcon
