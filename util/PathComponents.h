#pragma once

#include <QString>
#include <QStringView>

/// Paths by their components, and names that become single components of a path on the stick.
namespace PathComponents {

/// Longest component that every file system of ours takes, in bytes of UTF-8.
inline constexpr qsizetype maximumBytes = 255;

/// How many components a relative path has; 0 where it could lead anywhere else than below its
/// start, or twice to the same place: where a component is empty, "." or "..".
qsizetype count(QStringView path);

/// What stands behind the path's last "/"; all of it where there is none.
QString lastOf(const QString &path);

/// What stands before the path's last "/"; nothing where there is none.
QString folderOf(const QString &path);

/// What stands behind the last dot of the path's last component; empty where there is no dot, where
/// it is the component's first character, or where nothing follows it.
QStringView extensionOf(QStringView path);

/// The path's last component without its extension and the extension's dot.
QString stemOf(const QString &path);

/// Whether a name can be one component as it stands.
bool isName(const QString &name);

/// A name made safe as one component that `suffix` (an extension with its dot, or empty) will
/// follow:
/// "", "." and ".." become "_", and a name too long for both is cut at a character boundary.
QString safe(const QString &name, QStringView suffix = {});

/// The path with its number before the extension, as "Song.2.mp3"; a name without an extension gets
/// it at its end. The component stays within the longest length.
QString numbered(const QString &path, int number);

} // namespace PathComponents
