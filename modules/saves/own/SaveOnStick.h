#pragma once

#include <QString>

class FileOperationHandler;
class StickEditor;

/// One game save on a stick. It leaves its place and comes to it whole, in one step each: half a
/// save is worse than none, and would be backed up as one. What is on its way lies in a
/// folder of its own in the stick's root. No call may come while a run works on the stick.
class SaveOnStick
{
public:
    /// The editor is not owned and outlives it.
    SaveOnStick(StickEditor &stick, const QString &save);

    /// The folder of a stick's saves.
    static QString parentOn(const QString &volume);

    QString folder() const { return m_folder; }
    bool exists() const;
    /// Removes what is on its way, or was when a restore was interrupted.
    void removeStaged();
    /// Takes it out of its place; on failure it is as it was.
    bool takeAway(FileOperationHandler &handler);
    /// Puts a copy of a backup's files in its place, where nothing must be, and removes what was
    /// taken away; on failure nothing is there.
    bool put(const QString &backup, FileOperationHandler &handler);

private:
    StickEditor &m_stick;
    const QString m_folder;
};
