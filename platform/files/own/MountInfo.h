#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

/// What the kernel tells of mounts, in /proc/self/mountinfo (proc(5)).
namespace MountInfo {

/// The type of the file system that holds the path; empty where it can't be told.
QByteArray typeOf(const QString &path);

/// The options of the mounted file system itself; none where they can't be told.
QByteArrayList optionsOf(const QString &path);

} // namespace MountInfo
