#pragma once

#include <QString>
#include <QStringView>

namespace StringTools {

/// Whether the whole text matches the pattern, in which "*" stands for any run of characters (also
/// none) and "?" for exactly one; a backslash makes the character behind it literal. At most text
/// length times pattern length steps.
bool isLike(QStringView text, QStringView pattern);

/// "~" or a leading "~/" replaced by $HOME; any other path as it is.
QString expandingTilde(const QString &path);

/// Folder and component with exactly one "/" between them.
QString appendingPathComponent(const QString &folder, const QString &component);

/// Absolute path in normal form: "." and ".." steps resolved by text, no "//", no trailing "/".
QString standardizingPath(const QString &path);

} // namespace StringTools
