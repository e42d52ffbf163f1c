#pragma once

#include <QString>

/// The desktop metadata of a folder that a custom icon needs: a block of 32 bytes, kept in the
/// extended attribute "user.com.apple.FinderInfo", whose big-endian 16-bit field at offset 8 holds
/// the flags.
namespace FinderInfo {

/// Sets the custom-icon flag (0x0400) and clears has-been-initialised (0x0100), keeping every other
/// bit and byte. False where the file system takes no such attribute. Any thread.
bool setCustomIconFlag(const QString &folder);

} // namespace FinderInfo
