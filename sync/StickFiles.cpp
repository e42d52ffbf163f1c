#include "sync/StickFiles.h"

namespace StickFiles {

QString caravelFolder(const QString &volume)
{
    return volume + QStringLiteral("/.caravel");
}

QString restoreFolder(const QString &volume)
{
    return volume + QStringLiteral("/.caravel-restore");
}

QString lastSyncSize(const QString &volume)
{
    return caravelFolder(volume) + QStringLiteral("/LastSyncSize");
}

QString syncIndex(const QString &volume, const QString &moduleSaveName)
{
    return caravelFolder(volume) + u'/' + moduleSaveName + QStringLiteral("SyncIndex.plist");
}

QString unfinished(const QString &volume)
{
    return caravelFolder(volume) + QStringLiteral("/Unfinished");
}

QString lastSelection(const QString &volume)
{
    return caravelFolder(volume) + QStringLiteral("/LastSelection.plist");
}

QString selectionProfile(const QString &volume, const QString &moduleSaveName)
{
    return caravelFolder(volume) + u'/' + moduleSaveName + QStringLiteral(".plist");
}

QString relativeToVolume(const QString &path, const QString &volume)
{
    return isOnVolume(path, volume) ? path.mid(volume.size()) : path;
}

bool isOnVolume(const QString &path, const QString &volume)
{
    return path.startsWith(volume) &&
           (path.size() == volume.size() || path.at(volume.size()) == u'/');
}

} // namespace StickFiles
