#pragma once

#include "platform/files/FileManager.h"

#include <QString>

/// How the copy of one thing ended.
struct CopyOutcome
{
    enum class Ended {
        Refused,  ///< nothing was made: no source, no destination, or something is there already
        Complete, ///< all of it is on the device
        Stopped,  ///< by the handler; what is there is shorter than its source
        Failed,   ///< midway; what is there is not whole
    };
    quint64 bytes = 0; ///< written to the destination; not counted for folders
    Ended ended = Ended::Refused;

    bool isComplete() const { return ended == Ended::Complete; }
};

/// File operations that the sync engine and the modules share. They work on
/// FileManager::defaultManager(). Any thread.
namespace FileManagerTools {

/// Makes sure that a folder exists at an absolute path, making every missing folder on the way.
/// Failures are passed over: the caller finds out when it uses the folder.
void createPath(const QString &path);

/// Copies a file in chunks of 1 MiB, told to the handler one by one, and flushes the destination's
/// file system; a folder is copied as a tree without progress. An existing destination is left
/// alone, a missing source passed over. A destination that can't be made is reported once
/// ("Couldn't create"), a source that can't be opened likewise ("Couldn't read").
CopyOutcome copyPath(const QString &source, const QString &toPath,
                     FileOperationHandler &detailedHandler);

/// The path with every symbolic link along it followed. Where a link can't be resolved (a loop, a
/// missing target) the path is kept as built so far.
QString pathByResolvingAliasesInPath(const QString &path);

} // namespace FileManagerTools
