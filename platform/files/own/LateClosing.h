#pragma once

#include "platform/files/FileError.h"

#include <vector>

/// FAT that is mounted with "flush", as desktops do, makes the last close of a written file wait
/// for a tenth of a second, whatever has been flushed before. Such files are closed beside their
/// writer.
namespace LateClosing {

/// Whether the open file lies where closing waits.
bool isWorthwhile(int descriptor);

/// Takes the descriptor over and closes it on a worker; waits while sixteen are being closed. Any
/// thread but the main one.
void close(int descriptor);

/// Waits until none is being closed. What failed since it was last asked, as writing. Any thread
/// but the main one.
std::vector<FileError> finish();

} // namespace LateClosing
