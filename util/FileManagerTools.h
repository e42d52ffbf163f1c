#pragma once

#include "platform/files/FileManager.h"

#include <QString>

#include <optional>

/// File operations that the sync engine and the modules share. They work on
/// FileManager::defaultManager(). Any thread, except that copyPath() must not run twice at the same
/// time: every copy uses one buffer.
namespace FileManagerTools {

/// Makes sure that a folder exists at an absolute path, making every missing folder on the way.
/// Failures are passed over: the caller finds out when it uses the folder.
void createPath(const QString &path);

/// Copies a file in chunks of 1 MiB, told to the handler one by one, and flushes the destination's
/// file system; a folder is copied as a tree without progress. An existing destination is left
/// alone and answered with false, a missing source too. True also when the handler stopped the copy
/// or a read or write failed midway: the destination is then shorter than its source. A destination
/// that can't be made is reported once, with "Error" = "Couldn't create", and answered with false;
/// a source that can't be opened likewise with "Couldn't read".
bool copyPath(const QString &source, const QString &toPath, FileOperationHandler &detailedHandler);

/// The path with every symbolic link along it followed. Where a link can't be resolved (a loop, a
/// missing target) the path is kept as built so far.
QString pathByResolvingAliasesInPath(const QString &path);

/// A byte count for people, as "1.5 KB" (localized); "--" for 0 and for nothing.
QString sizeDescriptionForByteCount(std::optional<quint64> byteCount);

/// Moves a file or folder to the user's Trash; false, and it stays, where that fails.
bool trashFileAtPath(const QString &path, FileOperationHandler *handler = nullptr);

/// A title as a file name that a FAT file system takes: `: / ? < > | * \` become "_", `"` becomes
/// "'", a last "." becomes "_", canonically decomposed (NFD), trimmed. Its length is not limited.
QString makeFilename(const QString &title);

} // namespace FileManagerTools
