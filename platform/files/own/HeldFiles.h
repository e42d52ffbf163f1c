#pragma once

#include "platform/core/own/Posix.h"

#include <memory>
#include <string>
#include <vector>

/// FAT and exFAT free the clusters of what is removed at once, and the kernel may write that to the
/// device before it writes that the name has gone. A stick that is pulled in between has a name
/// that leads to free clusters: the next removal of it makes the kernel find the file system
/// damaged and refuse to write. As long as a removed file is open its clusters stay, so it is held
/// open until the removal of its name has been flushed; then a pull leaves lost clusters only. Any
/// thread.
namespace HeldFiles {

/// What is held; letting go of it frees the clusters.
using Batch = std::vector<std::unique_ptr<Posix::Descriptor>>;

/// Whether what lies in the folder, or the folder itself, has to be held.
bool areNeededIn(const std::string &folder);
bool areNeededAt(int descriptor);

/// To be called before the name is removed. Where 64 are held already they are flushed and let go
/// of first. What can't be opened is passed over.
void hold(int at, const char *name);

/// All that is held, for who is going to flush it: flushOthers() and the end of the batch's life
/// follow.
Batch take();

/// Flushes the file systems of the batch but that of the given file, which is flushed already.
void flushOthers(const Batch &batch, int flushed);

} // namespace HeldFiles
