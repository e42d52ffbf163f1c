#pragma once

#include <QString>

class FileOperationHandler;

/// One game save on a stick. It leaves its place and comes to it whole, in one step each: half a
/// save is worse than none, and would be backed up as one. What is on its way lies in the stick's
/// ".caravel". No call may come while a run works on the stick.
class SaveOnStick
{
public:
    SaveOnStick(const QString &volume, const QString &save);

    /// The folder of a stick's saves.
    static QString parentOn(const QString &volume);
    /// Removes what an interrupted restore left on a stick.
    static void removeLeftovers(const QString &volume);

    QString folder() const { return m_folder; }
    bool exists() const;
    /// Takes it out of its place; on failure it is as it was.
    bool takeAway(FileOperationHandler &handler) const;
    /// Puts a copy of a backup's files in its place, where nothing must be, and removes what was
    /// taken away; on failure nothing is there.
    bool put(const QString &backup, FileOperationHandler &handler) const;

private:
    const QString m_volume;
    const QString m_folder;
};
