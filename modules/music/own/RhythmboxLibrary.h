#pragma once

#include "modules/music/own/MusicReading.h"

/// Rhythmbox's database, that of its Flatpak where only that one is there.
QString rhythmboxDatabase();

/// Rhythmbox's songs as one playlist, "Music", and its playlists: the static ones, and the
/// automatic ones as their queries choose now. One whose query can't be answered is left out, and
/// the system log says so. Entries that are no songs of the database are left out. The program may
/// be running. Fails where the database is missing or can't be read. Any thread.
FileResult<MusicLibrary> readRhythmbox(const QString &database, const MusicReading &reading);
