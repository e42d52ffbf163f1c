#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// URLs of files on this computer, as libraries of other programs store them.
namespace FileUrl {

/// The absolute path that a "file:" URL (UTF-8, percent-encoded; any host) names, without a
/// trailing slash. Nothing for another scheme, a relative path, or a path that no file can have.
/// Escapes that are none stay as they stand.
std::optional<QString> path(std::string_view url);

/// The URL of the file at an absolute path (UTF-8), from which path() gives it back.
std::string of(std::string_view path);

} // namespace FileUrl
