#pragma once

#include "platform/files/FileManager.h"

#include <QString>

/// File operations that the sync engine and the modules share. They work on
/// FileManager::defaultManager(). Any thread.
namespace FileManagerTools {

/// Makes sure that a folder exists at an absolute path, making every missing folder on the way.
/// Failures are passed over: the caller finds out when it uses the folder.
void createPath(const QString &path);

/// Copies a file in chunks of 1 MiB, told to the handler one by one, and flushes the destination's
/// file system; a folder is copied as a tree without progress. An existing destination is left
/// alone and answered with false, a missing source too. True also when the handler stopped the copy
/// or a read or write failed midway: the destination is then shorter than its source. A destination
/// that can't be made is reported once ("Couldn't create") and answered with false; a source that
/// can't be opened likewise ("Couldn't read").
bool copyPath(const QString &source, const QString &toPath, FileOperationHandler &detailedHandler);

/// The path with every symbolic link along it followed. Where a link can't be resolved (a loop, a
/// missing target) the path is kept as built so far.
QString pathByResolvingAliasesInPath(const QString &path);

} // namespace FileManagerTools
