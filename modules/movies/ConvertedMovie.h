#pragma once

#include <QString>

/// The converter's result on its way: "CONVERT" + ending in the support folder. Any thread, one
/// call at a time.
namespace ConvertedMovie {

inline const QString movieEnding = QStringLiteral(".MP4");
inline const QString thumbnailEnding = QStringLiteral(".THM");

/// Where the converter leaves it; full path.
QString file(const QString &ending);

/// Makes the folder in the library and moves what there is of the result into it, as `name` with
/// its endings. The library may lie on another disk: no part of a movie gets that name even where
/// the copy is cut short. False, said in the system log, where the movie could not be moved; it is
/// still where the converter left it then. The thumbnail alone may stay behind.
bool moveInto(const QString &folder, const QString &name, const QString &library);

/// Gives the result its title as its name where it lies; what an earlier movie of that title left
/// there stays. The movie's full path; empty where it can't be done.
QString keep(const QString &title);

/// Removes what an interrupted conversion or move left, but a thumbnail.
void removeLeftovers(const QString &library);

} // namespace ConvertedMovie
