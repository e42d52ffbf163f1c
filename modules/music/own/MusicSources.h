#pragma once

#include "modules/music/own/MusicReading.h"
#include "util/Settings.h"

/// The libraries that playlists can come from.
namespace MusicSources {

/// The file or folder of the source's library, whether or not it is there. Links are followed.
QString place(Settings::MusicSource source);

/// Errors are those of MusicLibrary::read(). Any thread.
FileResult<MusicLibrary> read(Settings::MusicSource source, const MusicReading &reading);

} // namespace MusicSources
