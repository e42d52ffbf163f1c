#pragma once

#include "modules/music/own/MusicReading.h"

/// The music folder as a library: each list below it (M3U, PLS, XSPF) is a playlist by its title,
/// else its name, and each folder that holds files which the PSP plays is one of these, by its path
/// below the music folder; the music folder itself goes by its own name. What a list names that
/// lies elsewhere, is missing or can't be played is left out, and counted in the system log. Hidden
/// files and folders are passed over, links to folders not followed. Fails where the folder is
/// missing or can't be read. Any thread.
FileResult<MusicLibrary> readFolderMusic(const QString &folder, const MusicReading &reading);
