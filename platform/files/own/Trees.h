#pragma once

#include "platform/core/own/Posix.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

/// What walking a tree takes. Paths are in the file system's bytes; errno says why there is
/// nothing.
namespace Trees {

std::string nativeText(const QString &path);

/// The target's text of a link.
std::optional<std::string> linkTarget(const std::string &path);

/// In byte order of names.
std::optional<std::vector<Posix::Entry>> entriesAt(const std::string &folder, Posix::Links links,
                                                   Posix::Sizes sizes = Posix::Sizes::Skip);

} // namespace Trees
