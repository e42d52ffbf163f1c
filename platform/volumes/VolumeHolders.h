#pragma once

#include <QString>

#include <vector>

/// A program that has something on a volume open, or works in a folder there: the volume can't be
/// unmounted under it.
struct VolumeHolder
{
    qint64 process = 0;
    QString program; ///< its short name
    QString path;    ///< one of the things that it holds, absolute
};

/// Those among this user's processes, in the order of their numbers; other users' can't be looked
/// at. Any thread.
std::vector<VolumeHolder> volumeHolders(const QString &volume);
