#pragma once

#include <QDate>
#include <QString>

/// The custom icon that makes the desktop show the stick as a PSP.
namespace DeviceIcon {

/// Puts the month's icon file of the resource folder ("PSP<month>.icns") on the volume as
/// ".VolumeIcon.icns", replacing an older one, and marks the volume as having a custom icon.
/// Whatever fails is passed over. Any thread.
void set(const QString &volume, const QString &resourceFolder, const QDate &today);

} // namespace DeviceIcon
