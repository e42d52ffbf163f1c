#pragma once

#include <QByteArray>
#include <QString>

/// What the kernel tells of mounts, in /proc/self/mountinfo (proc(5)).
namespace MountInfo {

/// The type of the file system that holds the path; empty where it can't be told.
QByteArray typeOf(const QString &path);

} // namespace MountInfo
