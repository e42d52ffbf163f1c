#pragma once

#include <QString>
#include <QStringView>

/// Names that become single components of a path on the stick.
namespace PathComponents {

/// Longest component that every file system of ours takes, in bytes of UTF-8.
inline constexpr qsizetype maximumBytes = 255;

/// What stands behind the last dot of the path's last component; empty where there is no dot, where
/// it is the component's first character, or where nothing follows it.
QStringView extensionOf(QStringView path);

/// A name made safe as one component that `suffix` (an extension with its dot, or empty) will
/// follow:
/// "", "." and ".." become "_", and a name too long for both is cut at a character boundary.
QString safe(const QString &name, QStringView suffix = {});

/// The path with its number before the extension, as "Song.2.mp3"; a name without an extension gets
/// it at its end. The component stays within the longest length.
QString numbered(const QString &path, int number);

} // namespace PathComponents
